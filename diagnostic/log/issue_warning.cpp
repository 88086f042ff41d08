// Issuing a warning and handing it to the log.
#include "diagnostic/log/issue_warning.hpp"

#include <orrery/warning/warning_operation.hpp>

namespace orrery::lang::diagnostic {

// Until the module's log exists, a warning is shown and becomes the last warning.
void issueAndLogWarning(warning::WarningManagerContext* context, const std::string& identifier,
                        const std::u16string& /*format*/, std::int32_t /*count*/,
                        const value::ValueArray* const* /*values*/, const std::u16string& message) {
    warning::issueWarningWithoutLogging(context, identifier, message);
    if (context != nullptr) warning::utSetLastWarningMsg(context, identifier, message);
}

}  // namespace orrery::lang::diagnostic
