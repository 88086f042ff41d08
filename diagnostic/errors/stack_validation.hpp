// Validation of stack arrays: N-by-1 structures with fields file, name and line.
#pragma once

#include <orrery/value/value_array.hpp>

namespace orrery::diagnostic {

/// Returns when stack is an N-by-1 structure array (N may be 0) whose elements all
/// hold a char array file, a char array name and a scalar double line. Otherwise
/// raises, checking in this order: "ORRERY:error:badStackStruct" (not a structure
/// or object array), "ORRERY:error:badStack" (not two-dimensional, or not one
/// column), "ORRERY:error:badStackFile" (any of the three fields missing), then per
/// element, first failing element first, "ORRERY:error:badStackFileString",
/// "ORRERY:error:badStackName" and "ORRERY:error:badStackLine".
void validateStack(const value::ValueArray& stack);

}  // namespace orrery::diagnostic
