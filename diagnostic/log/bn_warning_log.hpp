// bnWarningLog: the module's exported base of warning logs.
#pragma once

#include "diagnostic/module/export.hpp"

#include <orrery/warning/warning_log.hpp>

namespace orrery::lang::diagnostic {

/// The warning-log interface as a type this module exports, so that other
/// modules can derive their own logs from it. It implements none of the
/// interface's operations.
class DIAGNOSTIC_EXPORT bnWarningLog : public warning::utWarningLog {
public:
    bnWarningLog();
    bnWarningLog(const bnWarningLog& other);
    ~bnWarningLog() override;
    bnWarningLog& operator=(const bnWarningLog& other);
};

}  // namespace orrery::lang::diagnostic
