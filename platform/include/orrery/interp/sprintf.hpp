// The language's sprintf.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>

namespace orrery::interp {

/// sprintf(format, args...): count >= 1 values, the first being the format (a
/// char row or a string scalar). Returns a 1-by-N char row, or a 1-by-1 string
/// when the format is a string. Escapes are processed in the format; the format
/// is applied to the elements of all arguments in order and repeated while
/// elements remain. A format that is not text raises
/// "ORRERY:sprintf:missingStringArgument"; count < 1 "ORRERY:notEnoughInputs".
ORRERY_API value::ValueArray fiSprintf(std::int32_t count, const value::ValueArray* const* values);

}  // namespace orrery::interp
