// The language's sprintf.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <string>

namespace orrery::interp {

/// sprintf(format, args...): values[0] is the format, values[1 .. count-1] its data.
///
/// The format is a char row, the 0-by-0 char array or a string scalar. The result
/// is a 1-by-N char row (1-by-0 when empty), or a 1-by-1 string when the format is
/// a string. In the format, the escapes \n \t \\ \a \b \f \r \v, octal \ooo (one to
/// three digits) and hex \xH.. (one to four digits) stand for their characters and
/// "%%" for a percent sign; a backslash before anything else stays as written.
///
/// Conversions are %[flags][width][.precision][l|h]type with flags "-+ 0#", type
/// one of d i u o x X c s f e E g G, and "*" for a width or precision taken from
/// the data. The data are the elements of all arguments in order, each argument
/// column-major: numbers and logicals one by one, string elements as texts ("<missing>"
/// for a missing one), char arrays one character (its code) per conversion, except
/// that %s takes the rest of the current char array at once. The format is applied
/// again while data remain; the output ends at the first conversion that finds no
/// data left, after the literal text before it. A format without conversions, or a
/// call without data (no arguments, or only empty ones), gives the literal text
/// once, conversions printing nothing. An incomplete or unknown conversion ends
/// the format where it stands.
///
/// Per conversion: %d %i %u %o %x %X print whole numbers; a fraction (or, for
/// %u %o %x %X, a negative number) prints as %e would with the same flags, width and
/// precision. %c prints the character of a code from 0 to 65535, anything else as
/// %e. %s prints a whole number that fits 64 bits as an integer and any other number
/// as %g; a text it cuts to the precision. Inf, -Inf and NaN print as such under
/// every conversion. A text given to any conversion prints as it stands.
///
/// Failures: count < 1 raises "ORRERY:notEnoughInputs"; a format that is not text
/// "ORRERY:sprintf:missingStringArgument"; a width or precision that is not a whole number of at
/// most 100000 in magnitude "ORRERY:sprintf:badFieldSize"; a cell, struct or object
/// argument "ORRERY:sprintf:unsupportedArgument"; a null argument "ORRERY:invalidInput"; a
/// result longer than 2^27 characters "ORRERY:sprintf:resultTooLong".
ORRERY_API value::ValueArray fiSprintf(std::int32_t count, const value::ValueArray* const* values);

/// The text fiSprintf(count, values) holds, whatever the class of its format, with
/// the same failures; for callers that want the text rather than an array.
ORRERY_API std::u16string sprintfText(std::int32_t count, const value::ValueArray* const* values);

}  // namespace orrery::interp
