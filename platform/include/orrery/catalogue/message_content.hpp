// The content of a catalogue message object: its identifier and arguments.
#pragma once

#include <orrery/catalogue/message_argument.hpp>
#include <orrery/export.hpp>

#include <string>
#include <vector>

namespace orrery::catalogue {

/// What a message object holds: the identifier of a catalogue entry and the
/// arguments that fill it. The text is formatted on demand.
struct ORRERY_API MessageContent {
    std::string identifier;
    std::vector<MessageArgument> arguments;

    /// Component part: the identifier without its last component ("ORRERY:error").
    std::string component() const;
    /// Last component of the identifier ("badStack").
    std::string key() const;
    /// The catalogue text with the arguments filled in, in the current locale.
    std::u16string text() const;
};

}  // namespace orrery::catalogue
