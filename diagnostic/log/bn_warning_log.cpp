// bnWarningLog: defined here so that its members, type information and virtual
// table are emitted once, in the module, and exported.
#include "diagnostic/log/bn_warning_log.hpp"

namespace orrery::lang::diagnostic {

bnWarningLog::bnWarningLog() = default;
bnWarningLog::bnWarningLog(const bnWarningLog& other) = default;
bnWarningLog::~bnWarningLog() = default;
bnWarningLog& bnWarningLog::operator=(const bnWarningLog& other) = default;

}  // namespace orrery::lang::diagnostic
