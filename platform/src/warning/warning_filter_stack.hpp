// The process-wide stack of warning-output filters, as the warning operation runs it.
#pragma once

#include <string>

namespace orrery::warning {

/// Runs the registered filters over text, most recently pushed first; false when
/// one of them suppresses the warning (the remaining ones are then not run).
bool runWarningFilters(std::u16string& text);

}  // namespace orrery::warning
