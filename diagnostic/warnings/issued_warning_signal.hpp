// The process-wide issued-warning signal: every warning that reaches the warning
// log is emitted to it with its full record.
#pragma once

#include "diagnostic/warnings/issued_warning_connection.hpp"

#include <orrery/lang/warning.hpp>

namespace orrery::lang::diagnostic {

/// Calls every connected slot with the record.
void emitIssuedWarning(const Warning& warning);

/// True when at least one slot is connected, so an emitted record has a receiver.
bool hasIssuedWarningSlots();

}  // namespace orrery::lang::diagnostic
