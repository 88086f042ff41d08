// The typed arguments of a warning log: the "type" names and the conversion of
// an argument's text back into its value.
#pragma once

#include <orrery/lang/printf_argument.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace orrery::lang::diagnostic {

/// The kinds an "arg" element's "type" names, with their codes.
enum class LogArgType { Char = 1, Int32, UInt32, Int64, UInt64, Double, String };

/// The kind named by a "type" value ("char", "int32", "uint32", "int64", "uint64",
/// "double", "string", compared exactly); nothing for any other value.
std::optional<LogArgType> logArgTypeNamed(std::string_view name);

/// The argument that text (already unescaped) holds, by boost::lexical_cast rules:
/// - Char: an optional "+" or "-" and an unsigned 16-bit number ("-" wraps modulo
///   2^16), giving a text of that one code unit;
/// - Int32, Int64: an optional sign and digits within the type's range;
/// - UInt32, UInt64: an optional sign and digits within the type's range, "-"
///   wrapping modulo 2^32 or 2^64;
/// - Double: "nan", "inf" or "infinity" in any case with an optional sign, or the
///   whole text read as a double, which may not end in "+", "-", "e" or "E";
/// - String: the text itself.
/// Raises boost::bad_lexical_cast when the text does not convert (an empty text
/// converts only as String).
PrintfArgument convertLogArgument(LogArgType type, std::u16string text);

}  // namespace orrery::lang::diagnostic
