// The outputs that describe the last warning, shared by lastwarn and warning.
#pragma once

#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <cstdint>

namespace orrery::diagnostic {

/// Sets output 1 to the last warning's message and, when two outputs are
/// requested, output 2 to its identifier.
void produceLastWarningOutputs(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context);

}  // namespace orrery::diagnostic
