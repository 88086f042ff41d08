// A sprintf format taken apart into literal runs and conversions.
#pragma once

#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

namespace orrery::interp::detail {

/// The largest width or precision a conversion may ask for, written or taken from the data.
inline constexpr int maxFieldSize = 100000;

/// The most characters a result may hold: as many as the language's largest array.
inline constexpr std::size_t maxResultLength = std::size_t{1} << 27;

/// A width or precision: absent, written in the format, or taken from the data ("*").
struct FieldSize {
    enum class Source { None, Written, FromData };
    Source source = Source::None;
    int value = 0;
};

/// The flags of a conversion, as C printf knows them.
struct ConversionFlags {
    bool leftAlign = false;  // '-'
    bool plusSign = false;   // '+'
    bool spaceSign = false;  // ' '
    bool zeroPad = false;    // '0'
    bool alternate = false;  // '#'
};

/// One conversion: flags, width, precision and the conversion character, one of
/// "diuoxXcsfeEgG". Length modifiers ('l', 'h') are accepted and dropped.
struct Conversion {
    ConversionFlags flags;
    FieldSize width;
    FieldSize precision;
    char type = 'd';
};

/// A run of literal text (escapes and "%%" already resolved) or a conversion.
using FormatItem = std::variant<std::u16string, Conversion>;

/// The items of a format; most formats fit without a heap block.
using FormatItems = boost::container::small_vector<FormatItem, 4>;

/// Takes a format apart. Escapes \n \t \\ \a \b \f \r \v, octal \ooo (one to three
/// digits) and hex \xH.. (one to four digits) become the units they stand for; a
/// backslash before anything else stays a backslash. Adjacent literal text forms
/// one item. An incomplete or unknown conversion ends the format there (the text
/// before it is kept); a written width or precision above maxFieldSize raises "ORRERY:sprintf:badFieldSize".
FormatItems parseFormat(std::u16string_view format);

/// True when the items hold at least one conversion.
bool hasConversion(const FormatItems& items);

}  // namespace orrery::interp::detail
