// The registered built-in "ResetLastPrintedWarning".
#include "diagnostic/module/reset_last_printed_warning.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/warning/warning_manager.hpp>

namespace orrery::diagnostic {

void resetLastPrintedWarning(std::int32_t nlhs, value::ValueArrayPtr* /*plhs*/, std::int32_t nrhs,
                             const value::ValueArray* const* /*prhs*/) {
    except::checkArgumentCounts(nlhs, 0, nrhs, 0, 0);
    if (auto* context = warning::utGetWarningManagerContext()) warning::utSetLastPrintedWarningId(context, "");
}

}  // namespace orrery::diagnostic
