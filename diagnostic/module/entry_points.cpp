// Module start and stop: built-in registration, class registration, warning log.
#include "diagnostic/module/entry_points.hpp"

#include "diagnostic/classes/class_registration.hpp"
#include "diagnostic/log/warning_log_factory.hpp"
#include "diagnostic/module/reset_last_printed_warning.hpp"

#include <orrery/services/services.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <boost/thread/once.hpp>

namespace {

boost::once_flag resetBuiltinRegistered = BOOST_ONCE_INIT;

void registerResetBuiltin() {
    orrery::services::svRegisterBuiltin(orrery::diagnostic::kResetLastPrintedWarningName, 0,
                                        &orrery::diagnostic::resetLastPrintedWarning);
}

}  // namespace

void LxInitialize_diagnostic() {
    // A failure leaves the flag unset, so a later initialisation tries again.
    boost::call_once(resetBuiltinRegistered, &registerResetBuiltin);
    orrery::lang::diagnostic::registerWarningClassForModule();

    // Both functions go in before the log is set: the context destroys a log
    // with the destroy function installed at the moment it was set.
    orrery::warning::utSetWarningLogFactoryFcn(&orrery::lang::diagnostic::createWarningLog);
    orrery::warning::utSetWarningLogDestroyFcn(&orrery::lang::diagnostic::destroyWarningLog);
    if (auto* context = orrery::warning::utGetWarningManagerContext())
        orrery::warning::utSetWarningLog(context, orrery::lang::diagnostic::createWarningLog());
}

void LxTerminate_diagnostic() {
    orrery::warning::utSetWarningLogFactoryFcn(nullptr);
    orrery::warning::utSetWarningLogDestroyFcn(nullptr);
    // The context destroys its log through the destroy function it was set with.
    if (auto* context = orrery::warning::utGetWarningManagerContext())
        orrery::warning::utSetWarningLog(context, nullptr);
}
