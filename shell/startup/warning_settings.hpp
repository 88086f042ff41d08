// Warning states set at start-up: -W STATE[:IDENTIFIER] on the command line and
// the ORRERY_WARNINGS variable, applied through the warning built-in before
// anything runs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orrery::shell::startup {

/// One state setting as given: STATE alone stands for STATE:all.
struct WarningSetting {
    std::string written;     ///< the setting as the user wrote it
    std::u16string origin;   ///< where it was given: "-W" or "ORRERY_WARNINGS"
    std::string state;       ///< "on", "off" or "error", in any letter case
    std::string identifier;  ///< the warning identifier, "all" or another word the warning built-in takes
};

/// The environment variable holding comma-separated settings.
inline constexpr const char* kWarningsVariable = "ORRERY_WARNINGS";

/// Reads "STATE" or "STATE:IDENTIFIER" (split at the first colon). Raises
/// "ORRERY:shell:badWarningSetting" naming the text and the origin when the
/// state is not on, off or error or the identifier after the colon is empty.
/// Whether the identifier is acceptable is for the warning built-in to say.
WarningSetting parseWarningSetting(std::string_view written, std::u16string_view origin);

/// The settings of a comma-separated list (the variable's value), in order;
/// blanks around each item are dropped and an empty list gives none. Raises as
/// parseWarningSetting, also for an empty item.
std::vector<WarningSetting> parseWarningList(std::string_view list, std::u16string_view origin);

/// The settings of ORRERY_WARNINGS (none when it is unset).
std::vector<WarningSetting> warningSettingsFromEnvironment();

/// Applies each setting in order by calling the bound "warning" function with
/// the state and the identifier, as warning(STATE, IDENTIFIER) in a script
/// would. A refusal raises "ORRERY:shell:refusedWarningSetting" naming the
/// setting, its origin and the warning function's message.
void applyWarningSettings(const std::vector<WarningSetting>& settings);

}  // namespace orrery::shell::startup
