// Issuing a warning and handing it to the log.
#include "diagnostic/log/issue_warning.hpp"

#include "diagnostic/log/warning_log_factory.hpp"

#include <orrery/warning/warning_operation.hpp>

namespace orrery::lang::diagnostic {
namespace {

// Installs a destroy function for as long as it lives, then the previous one again.
class DestroyFunctionScope {
public:
    explicit DestroyFunctionScope(warning::utWarningLogDestroyFcn destroy)
        : previous_(warning::utGetWarningLogDestroyFcn()) {
        warning::utSetWarningLogDestroyFcn(destroy);
    }
    ~DestroyFunctionScope() { warning::utSetWarningLogDestroyFcn(previous_); }
    DestroyFunctionScope(const DestroyFunctionScope&) = delete;
    DestroyFunctionScope& operator=(const DestroyFunctionScope&) = delete;

private:
    warning::utWarningLogDestroyFcn previous_;
};

}  // namespace

warning::utWarningLog* getOrCreateWarningLog(warning::WarningManagerContext* context) {
    if (warning::utWarningLog* log = warning::utGetWarningLog(context)) return log;
    if (const warning::utWarningLogFactoryFcn factory = warning::utGetWarningLogFactoryFcn()) {
        // The installed pair makes and destroys it.
        warning::utSetWarningLog(context, factory());
        return warning::utGetWarningLog(context);
    }
    // The context destroys a log with the destroy function installed when the log
    // is set: this module's own, so that the log it makes here is not leaked.
    const DestroyFunctionScope ownDestroy(&destroyWarningLog);
    warning::utSetWarningLog(context, createWarningLog());
    return warning::utGetWarningLog(context);
}

void issueAndLogWarning(warning::WarningManagerContext* context, const std::string& identifier,
                        std::u16string_view format, std::int32_t count, const value::ValueArray* const* values,
                        const std::u16string& message) {
    const bool wasDisabled = warning::issueWarningWithoutLogging(context, identifier, message);
    if (context == nullptr) return;
    if (warning::utWarningLog* log = getOrCreateWarningLog(context))
        log->warn(context, identifier, format, count, values, message, wasDisabled);
}

}  // namespace orrery::lang::diagnostic
