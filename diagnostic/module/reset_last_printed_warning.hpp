// The registered built-in "ResetLastPrintedWarning".
#pragma once

#include <orrery/value/value_array.hpp>

#include <cstdint>

namespace orrery::diagnostic {

/// The name under which the built-in is registered with the services layer.
inline constexpr const char* kResetLastPrintedWarningName = "ResetLastPrintedWarning";

/// Clears the current context's last printed warning identifier. Takes no inputs
/// and gives no outputs (standard argument-count errors otherwise).
void resetLastPrintedWarning(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                             const value::ValueArray* const* prhs);

}  // namespace orrery::diagnostic
