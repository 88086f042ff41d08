// The process-wide issued-warning signal.
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include <boost/signals2/signal.hpp>

namespace orrery::lang::diagnostic {
namespace {

using IssuedWarningSignal = boost::signals2::signal<void(const Warning&)>;

// Made on first use, so that connecting works during other static initialisation.
IssuedWarningSignal& issuedWarningSignal() {
    static IssuedWarningSignal signal;
    return signal;
}

}  // namespace

void emitIssuedWarning(const Warning& warning) { issuedWarningSignal()(warning); }

bool hasIssuedWarningSlots() { return !issuedWarningSignal().empty(); }

}  // namespace orrery::lang::diagnostic

namespace builtins {

boost::signals2::connection connectIssuedWarningCallback(
    const boost::signals2::slot<void(const orrery::lang::diagnostic::Warning&)>& slot) {
    return orrery::lang::diagnostic::issuedWarningSignal().connect(slot);
}

}  // namespace builtins
