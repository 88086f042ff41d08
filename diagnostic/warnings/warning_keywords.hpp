// The keyword table of the warning built-in's state commands.
#pragma once

#include "diagnostic/warnings/warning_commands.hpp"

#include <cstdint>
#include <string_view>

namespace orrery::diagnostic {

/// The command a first input names, or null. "on", "off", "query", "backtrace"
/// and "verbose" match in any case, "once", "always" and "debug" exactly; "error"
/// (any case) names a command only when at least one more input follows.
WarningCommand findWarningCommand(std::string_view first, std::int32_t remainingInputs);

}  // namespace orrery::diagnostic
