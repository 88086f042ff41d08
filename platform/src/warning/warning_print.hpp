// Rendering of a warning that the warning operation lets through.
#pragma once

#include <orrery/warning/warning_manager.hpp>

#include <string>
#include <string_view>

namespace orrery::warning {

/// The printed lines of a warning: "Warning: <message>", then the caller's
/// location (backtrace mode) and the hint to turn it off (verbose mode), each
/// ending in a line break. Invalid text is rendered with U+FFFD.
std::string renderWarning(WarningManagerContext* context, std::string_view identifier, std::u16string_view message);

}  // namespace orrery::warning
