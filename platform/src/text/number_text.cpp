// Reading numbers on std::from_chars, which never consults the locale.
#include <orrery/text/number_text.hpp>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace orrery::text {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";
// An exponent beyond this is as good as infinite for any double.
constexpr std::int64_t kFarExponent = std::int64_t{1} << 40;

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool startsWithSign(std::string_view text) { return !text.empty() && (text.front() == '+' || text.front() == '-'); }

bool isHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

// The power of the radix at the first nonzero digit of a mantissa: 2 for "123",
// 0 for "1.5", -2 for "0.01".
std::int64_t leadingPower(std::string_view mantissa) {
    const auto point = std::min(mantissa.find('.'), mantissa.size());
    const auto first = mantissa.find_first_not_of("0.");
    if (first == std::string_view::npos) return 0;
    if (first < point) return static_cast<std::int64_t>(point - first) - 1;
    return -static_cast<std::int64_t>(first - point);
}

// Whether a number that from_chars found out of range is too large rather than
// too small: its leading digit stands left of the point once scaled by the exponent.
bool overflows(std::string_view number, bool hex) {
    const auto marker = number.find_first_of(hex ? "pP" : "eE");
    std::int64_t exponent = 0;
    if (marker != std::string_view::npos) {
        std::string_view digits = number.substr(marker + 1);
        if (digits.front() == '+') digits.remove_prefix(1);
        if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc())
            exponent = digits.front() == '-' ? -kFarExponent : kFarExponent;
    }
    return leadingPower(number.substr(0, marker)) * (hex ? 4 : 1) + exponent > 0;
}

}  // namespace

std::optional<double> parseDouble(std::string_view text) {
    std::string_view rest = trimmed(text);
    const bool negative = !rest.empty() && rest.front() == '-';
    if (startsWithSign(rest)) rest.remove_prefix(1);
    const bool hex = rest.size() > 1 && rest[0] == '0' && (rest[1] == 'x' || rest[1] == 'X');
    if (hex) rest.remove_prefix(2);
    // from_chars takes a "-" of its own and "inf" after "0x"; neither is a number here.
    if (rest.empty() || startsWithSign(rest) || (hex && !isHexDigit(rest.front()) && rest.front() != '.'))
        return std::nullopt;
    double value = 0;
    const auto format = hex ? std::chars_format::hex : std::chars_format::general;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value, format);
    if (end != rest.data() + rest.size()) return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        value = overflows(rest, hex) ? std::numeric_limits<double>::infinity() : 0.0;
    } else if (error != std::errc()) {
        return std::nullopt;
    }
    return negative ? -value : value;
}

}  // namespace orrery::text
