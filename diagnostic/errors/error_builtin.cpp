// The error built-in.
#include "diagnostic/errors/error_builtins.hpp"

#include "diagnostic/errors/error_core.hpp"

#include <orrery/except/argument_errors.hpp>

void bnFullErrorFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* /*plhs*/, std::int32_t nrhs,
                    const orrery::value::ValueArray* const* prhs) {
    if (nlhs > 0) orrery::except::throwTooManyOutputs();
    if (nrhs < 1) orrery::except::throwNotEnoughInputs();
    static const std::string noFunctionName;
    orrery::diagnostic::throwError(nrhs, prhs, noFunctionName);
}
