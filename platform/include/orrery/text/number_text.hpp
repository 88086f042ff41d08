// Reading numbers from text, the same under every locale.
#pragma once

#include <orrery/export.hpp>

#include <optional>
#include <string_view>

namespace orrery::text {

/// Reads text that holds exactly one number, as the C library reads it in the "C"
/// locale whatever the current locale is: optional blanks (space, tab, line breaks),
/// an optional "+" or "-", then decimal digits with an optional point and exponent
/// ("1.5", ".5", "2e-3"), a hexadecimal number after "0x" with an optional binary
/// exponent ("0x1.8p1"), "Inf", "Infinity" or "NaN" in any case, and optional
/// blanks. A magnitude above the range of double reads as infinity, one below it as
/// zero. Nothing when the text holds anything else, or no number at all.
ORRERY_API std::optional<double> parseDouble(std::string_view text);

}  // namespace orrery::text
