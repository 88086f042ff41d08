// The interpreter's standard argument errors, shared by every built-in.
#pragma once

#include <orrery/export.hpp>

#include <cstdint>

namespace orrery::except {

/// "ORRERY:tooManyOutputs".
[[noreturn]] ORRERY_API void throwTooManyOutputs();
/// "ORRERY:tooManyInputs".
[[noreturn]] ORRERY_API void throwTooManyInputs();
/// "ORRERY:notEnoughInputs".
[[noreturn]] ORRERY_API void throwNotEnoughInputs();
/// "ORRERY:invalidInput".
[[noreturn]] ORRERY_API void throwInvalidInput();

/// Checks a built-in's counts: outputs first, then inputs (too many, then too few).
ORRERY_API void checkArgumentCounts(std::int32_t nlhs, std::int32_t maxOutputs, std::int32_t nrhs,
                                    std::int32_t minInputs, std::int32_t maxInputs);

}  // namespace orrery::except
