// Formatting one element of sprintf's data by one conversion.
#pragma once

#include "format_parser.hpp"
#include "sprintf_arguments.hpp"

#include <optional>
#include <string>

namespace orrery::interp::detail {

/// A conversion whose width and precision are settled ("*" already read from the data).
struct ResolvedConversion {
    ConversionFlags flags;
    std::optional<int> width;
    std::optional<int> precision;
    char type = 'd';
};

/// The text that one element gives under a conversion:
/// - Inf, -Inf and NaN print as such under every conversion, padded to the width;
/// - %d %i %u %o %x %X print whole numbers as C does (whole numbers beyond 64 bits
///   print in full under %d %i %u); a number they cannot take (a fraction, or a
///   negative number under %u %o %x %X) prints as %e would, with the same flags,
///   width and precision;
/// - %c prints the character with the number's code (0 to 65535), otherwise as %e;
/// - %s prints a whole number that fits 64 bits as %d would and any other number as %g;
/// - %f %e %E %g %G print numbers as C does;
/// - a text prints as it stands under every conversion, cut to the precision under %s.
/// Numbers go through the C library's snprintf, one conversion at a time, except
/// a whole number under a bare %d or %i, whose decimal digits need no C format.
std::u16string formatElement(const ResolvedConversion& conversion, const Element& element);

}  // namespace orrery::interp::detail
