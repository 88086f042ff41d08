// The host's "message" class: a catalogue message with its arguments.
#pragma once

#include <orrery/catalogue/message_content.hpp>
#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstddef>

namespace orrery::ocos {

/// A 1-by-1 object of the class "message" holding the content.
ORRERY_API value::ValueArray makeMessageObject(catalogue::MessageContent content);

/// True when the value is an object array of the class "message".
ORRERY_API bool isMessageObject(const value::ValueArray& value);

/// The content of element i of a "message" object array; raises
/// "ORRERY:value:wrongClass" for other values and "ORRERY:value:indexOutOfRange"
/// for an invalid element.
ORRERY_API catalogue::MessageContent messageContentOf(const value::ValueArray& value, std::size_t i = 0);

}  // namespace orrery::ocos
