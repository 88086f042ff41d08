// Typing a warning's format arguments for the log: from a printf-style format
// with its variable argument list, or from interpreter values.
#pragma once

#include <orrery/lang/printf_argument.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::lang::diagnostic {

/// Appends a run of UTF-8 bytes to sink and answers length.
using AppendFunction = std::size_t (*)(void* sink, const char* utf8, std::size_t length);

/// The argument of a "%U" specifier: a value that writes itself. It calls append
/// with sink any number of times and may read further arguments through cursor
/// (they are then consumed).
using WriterFunction = void (*)(AppendFunction append, void* sink, std::va_list* cursor);

/// A format as the log stores it, with its typed arguments in the order of the
/// specifiers that consumed them.
struct AnalysedFormat {
    std::u16string format;
    std::vector<PrintfArgument> arguments;
};

/// Reads the arguments that format's specifiers name from cursor, one 8-byte slot
/// each. A specifier is a "%" and the first following character of
/// "diuoxXfeEgGcspn%U"; what lies between is skipped, except that "l" or "ll"
/// just before the conversion is noticed. By conversion:
/// - d, i: int32 from the low 32 bits; with "l" int64 from the low 32 bits,
///   widened; with "ll" int64 from all 64 bits;
/// - u, o, x, X: the same, unsigned (uint32, uint64);
/// - f, e, E, g, G (with or without "L"): double;
/// - c and s: a NUL-terminated UTF-8 string (null: empty) as text;
/// - p: the pointer as C's "%p" prints it, as text; the specifier becomes "%s";
/// - U: a WriterFunction; what it appends becomes one text; the specifier becomes "%s";
/// - n: one slot is skipped and the specifier removed; "%%" reads nothing.
/// A "%" without a conversion after it (at the end, or followed by none) ends the
/// analysis and the stored format gets the rest from the end of the previous
/// specifier, so the text before that "%" appears twice ("abc%" gives "abcabc%").
/// "*" is not recognised. Never fails, except by running out of memory.
AnalysedFormat analyseFormat(std::u16string_view format, std::va_list* cursor);

/// Types one interpreter value: a char array (any size) as its text; an int32,
/// uint32, int64 or uint64 scalar as that kind; any other numeric or logical
/// scalar as a double; anything else (other classes, non-scalars, empties) as
/// double 0.
PrintfArgument argumentOfValue(const value::ValueArray& value);

}  // namespace orrery::lang::diagnostic
