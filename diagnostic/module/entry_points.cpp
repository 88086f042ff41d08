// Module start and stop: built-in registration, class registration, warning log.
#include "diagnostic/module/entry_points.hpp"

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
    // The Warning class, the log functions and the XML warning log are
    // registered here once the class and the log exist in the module.
}

void LxTerminate_diagnostic() {
    orrery::warning::utSetWarningLogFactoryFcn(nullptr);
    orrery::warning::utSetWarningLogDestroyFcn(nullptr);
    // The context destroys its log through the destroy function it was set with.
    if (auto* context = orrery::warning::utGetWarningManagerContext())
        orrery::warning::utSetWarningLog(context, nullptr);
}
