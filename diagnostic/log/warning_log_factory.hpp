// The module's warning-log factory and destroy functions, which the warning
// manager calls to make and destroy logs.
#pragma once

#include <orrery/warning/warning_log.hpp>

namespace orrery::lang::diagnostic {

/// Makes a new WarningLogXML; null when memory runs out.
warning::utWarningLog* createWarningLog() noexcept;

/// Destroys a log through its virtual destructor; nothing for null.
void destroyWarningLog(warning::utWarningLog* log) noexcept;

}  // namespace orrery::lang::diagnostic
