// The outputs of the state commands: the states in force before a change.
#pragma once

#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <cstdint>
#include <string_view>

namespace orrery::diagnostic {

/// Fills the requested outputs for a target ("all", an identifier, "backtrace",
/// "verbose", "debug" or empty), to be called before the state changes:
/// - none requested: nothing;
/// - two: issues "ORRERY:warning:FrequencyOutputObsolete" and sets output 2 to "always";
/// - output 1 for "all" (any case): an N-by-1 structure (identifier, state) with
///   "all" and the default first, then every identifier whose state differs from
///   the default, in the manager's order;
/// - for another target: a 1-by-1 structure with the target and its state;
/// - for an empty target: a 0-by-0 structure with the two fields.
void produceStateOutputs(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                         std::string_view target);

}  // namespace orrery::diagnostic
