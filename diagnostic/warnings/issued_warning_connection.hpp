// The connection point of the process-wide issued-warning signal, exported for
// the components that want to learn of every issued warning.
#pragma once

#include "diagnostic/module/export.hpp"

#include <orrery/lang/warning.hpp>

#include <boost/signals2/connection.hpp>
#include <boost/signals2/slot.hpp>

namespace builtins {

/// Connects slot at the end of the issued-warning signal's slot list. Each
/// connected slot is called once for every issued warning, disabled ones
/// included, in connection order on the issuing thread. The caller owns the
/// connection and disconnects through it.
DIAGNOSTIC_EXPORT boost::signals2::connection connectIssuedWarningCallback(
    const boost::signals2::slot<void(const orrery::lang::diagnostic::Warning&)>& slot);

}  // namespace builtins
