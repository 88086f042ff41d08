// The host's "message" class: a catalogue message with its arguments.
#pragma once

#include <orrery/catalogue/message_content.hpp>
#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <memory>

namespace orrery::ocos {

class COSClassInfo;

/// The class "message": read-only properties Identifier (asciiString) and
/// Arguments (a 1-by-N cell of char rows and double scalars), and the method
/// getString (one message scalar in, the formatted text out as a char row).
/// It is registered in the root namespace, so findClass("message") finds it.
ORRERY_API std::shared_ptr<const COSClassInfo> messageClass();

/// A 1-by-1 object of the class "message" holding the content. An identifier
/// without a catalogue entry raises "ORRERY:ocos:noSuchMessage".
ORRERY_API value::ValueArray makeMessageObject(catalogue::MessageContent content);

/// True when the value is an object array of the class "message".
ORRERY_API bool isMessageObject(const value::ValueArray& value);

/// The content of element i of a "message" object array; raises
/// "ORRERY:value:wrongClass" for other values, "ORRERY:value:indexOutOfRange"
/// for an index past the end and "ORRERY:ocos:invalidElement" for an element
/// that holds no message.
ORRERY_API catalogue::MessageContent messageContentOf(const value::ValueArray& value, std::size_t i = 0);

}  // namespace orrery::ocos
