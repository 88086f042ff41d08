// The identifier under which a catalogue message is logged.
#include "diagnostic/log/catalogue_message_identifier.hpp"

#include <string_view>

namespace orrery::lang::diagnostic {

std::string catalogueMessageIdentifier(const catalogue::MessageContent& message) {
    constexpr std::string_view kLegacyTwoPart = ":legacy_two_part";
    std::string component = message.component();
    const std::string_view view(component);
    if (view.ends_with(kLegacyTwoPart) && view.substr(0, view.size() - kLegacyTwoPart.size()) == "ORRERY")
        component = "ORRERY";
    return component + ":" + message.key();
}

}  // namespace orrery::lang::diagnostic
