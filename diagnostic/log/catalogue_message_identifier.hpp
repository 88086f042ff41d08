// The identifier under which a catalogue message is logged.
#pragma once

#include <orrery/catalogue/message_content.hpp>

#include <string>

namespace orrery::lang::diagnostic {

/// The message's component, a colon and its key; a component
/// "ORRERY:legacy_two_part" stands for "ORRERY", any other is kept whole.
std::string catalogueMessageIdentifier(const catalogue::MessageContent& message);

}  // namespace orrery::lang::diagnostic
