// The display modes behind the state commands: switching, querying, refusing debug.
#pragma once

#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <cstdint>
#include <string_view>

namespace orrery::diagnostic {

/// "backtrace" or "verbose".
std::string_view modeName(warning::WarningMode mode);

/// Fills the outputs for the mode (its state before the change), then switches it.
void switchMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                warning::WarningMode mode, bool on);

/// Without outputs prints whether the mode is on; with outputs returns its state.
void queryMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
               warning::WarningMode mode);

/// Raises "ORRERY:warning:debugOptionIsObsolete" for the obsolete command, naming
/// the replacement that stops (on) or no longer stops (off) at warnings.
[[noreturn]] void refuseObsoleteDebug(std::u16string_view command, bool on);

}  // namespace orrery::diagnostic
