// Catalogue message keys of what the warning built-ins raise, issue and print.
#pragma once

#include <orrery/except/message_id.hpp>

#include <string_view>

namespace orrery::diagnostic::ids {

/// Prefix of the analyzer failures raised on behalf of warning.
inline constexpr std::string_view kWarningPrefix = "ORRERY:warning:";

// ---- state commands: refusals -------------------------------------------------------
/// Argument: the rejected setting or identifier.
ORRERY_MESSAGE_KEY(UnknownSettingOrId, "ORRERY:warning:unknownSettingOrId", 1);
ORRERY_MESSAGE_KEY(NoLastWarning, "ORRERY:warning:noLastWarning", 0);
ORRERY_MESSAGE_KEY(CannotUseAllWithError, "ORRERY:warning:cannotUseAllWithError", 0);
/// Arguments: the obsolete command and its replacement.
ORRERY_MESSAGE_KEY(DebugOptionIsObsolete, "ORRERY:warning:debugOptionIsObsolete", 2);
/// Argument: the value given.
ORRERY_MESSAGE_KEY(IllegalDebugSetting, "ORRERY:warning:illegalDebugSetting", 1);
/// Arguments: "backtrace" and the value given.
ORRERY_MESSAGE_KEY(IllegalBacktraceSetting, "ORRERY:warning:illegalBacktraceSetting", 2);
/// Arguments: "verbose" and the value given.
ORRERY_MESSAGE_KEY(IllegalVerboseSetting, "ORRERY:warning:illegalVerboseSetting", 2);
ORRERY_MESSAGE_KEY(OnceAndAlwaysObsolete, "ORRERY:warning:OnceAndAlwaysObsolete", 0);

// ---- state structures: each argument is the element's index, from 1 -------------------
ORRERY_MESSAGE_KEY(MissingStructureField, "ORRERY:warning:missingStructureField", 0);
ORRERY_MESSAGE_KEY(NonStringState, "ORRERY:warning:nonStringState", 1);
ORRERY_MESSAGE_KEY(BadStateValue, "ORRERY:warning:badStateValue", 1);
ORRERY_MESSAGE_KEY(NonStringIdentifier, "ORRERY:warning:nonStringIdentifier", 1);
ORRERY_MESSAGE_KEY(BadIdentifierValue, "ORRERY:warning:badIdentifierValue", 1);

// ---- lastwarn -----------------------------------------------------------------------
/// Argument: the name of the offending argument.
ORRERY_MESSAGE_KEY(MustBeSingleString, "ORRERY:string:MustBeSingleString", 1);
/// Argument: the rejected identifier.
ORRERY_MESSAGE_KEY(LastwarnBadMessageIdentifier, "ORRERY:lastwarn:badMessageIdentifier", 1);

// ---- warnings the built-in issues itself ---------------------------------------------
inline constexpr std::string_view kInputsOutOfOrder = "ORRERY:warning:inputsOutOfOrder";
inline constexpr std::string_view kFrequencyOutputObsolete = "ORRERY:warning:FrequencyOutputObsolete";

// ---- printed messages of the state display ---------------------------------------------
inline constexpr std::string_view kBacktracesEnabled = "ORRERY:warning:warningBacktracesEnabled";
inline constexpr std::string_view kBacktracesDisabled = "ORRERY:warning:warningBacktracesDisabled";
inline constexpr std::string_view kOutputVerbose = "ORRERY:warning:warningOutputVerbose";
inline constexpr std::string_view kOutputTerse = "ORRERY:warning:warningOutputTerse";
/// Argument: the default state's name.
inline constexpr std::string_view kAllWarningsHaveTheState = "ORRERY:warning:allWarningsHaveTheState";
/// Argument: the default state's name.
inline constexpr std::string_view kDefaultWarningStateLine = "ORRERY:warning:defaultWarningStateLine";
inline constexpr std::string_view kStateWarningHeader = "ORRERY:warning:stateWarningHeader";
/// Arguments: the identifier and its state's name.
inline constexpr std::string_view kStateOfWarningIs = "ORRERY:warning:stateOfWarningIs";
inline constexpr std::string_view kNoLastWarningMsg = "ORRERY:warning:noLastWarningMsg";

}  // namespace orrery::diagnostic::ids
