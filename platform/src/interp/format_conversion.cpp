// One conversion of one element: numbers through snprintf, texts padded in UTF-16 units.
#include "format_conversion.hpp"
#include <orrery/except/internal_error.hpp>

#include <orrery/text/text.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <string_view>

namespace orrery::interp::detail {
namespace {

std::u16string pad(const ResolvedConversion& conversion, std::u16string body) {
    const auto width = static_cast<std::size_t>(conversion.width.value_or(0));
    if (body.size() >= width) return body;
    const std::u16string fill(width - body.size(), u' ');
    return conversion.flags.leftAlign ? body + fill : fill + body;
}

// The C format of one conversion; '#' only where C defines it.
std::string cFormat(const ResolvedConversion& conversion, char type, std::string_view length,
                    std::optional<int> precision) {
    const ConversionFlags& flags = conversion.flags;
    std::string pattern = "%";
    if (flags.leftAlign) pattern += '-';
    if (flags.plusSign) pattern += '+';
    if (flags.spaceSign) pattern += ' ';
    if (flags.zeroPad) pattern += '0';
    if (flags.alternate && std::string_view("oxXeEfgG").find(type) != std::string_view::npos) pattern += '#';
    if (conversion.width) pattern += std::to_string(*conversion.width);
    if (precision) pattern += '.' + std::to_string(*precision);
    pattern += length;
    pattern += type;
    return pattern;
}

// Most conversions fit the small buffer; wide ones are printed again into one
// of the size snprintf reported.
template <class T>
std::u16string printC(const std::string& pattern, T value) {
    std::array<char, 128> small{};
    const int size = std::snprintf(small.data(), small.size(), pattern.c_str(), value);
    if (size < 0) except::internalError("sprintf", "the C library rejected the conversion " + pattern);
    const auto length = static_cast<std::size_t>(size);
    if (length < small.size()) return text::asciiToUtf16(std::string_view(small.data(), length));
    std::string out(length, '\0');
    std::snprintf(out.data(), length + 1, pattern.c_str(), value);
    return text::asciiToUtf16(out);
}

std::u16string asExponent(const ResolvedConversion& conversion, double value) {
    return printC(cFormat(conversion, 'e', "", conversion.precision), value);
}

std::u16string nonFinite(const ResolvedConversion& conversion, double value) {
    const ConversionFlags& flags = conversion.flags;
    std::u16string body = u"Inf";
    if (std::isnan(value))
        body = u"NaN";
    else if (value < 0)
        body = u"-Inf";
    else if (flags.plusSign)
        body = u"+Inf";
    else if (flags.spaceSign)
        body = u" Inf";
    return pad(conversion, std::move(body));
}

// A decimal conversion with no flags, width or precision prints exactly the
// shortest decimal form, which std::to_chars gives without the C library.
bool isPlainDecimal(const ResolvedConversion& conversion) {
    const ConversionFlags& flags = conversion.flags;
    return !flags.leftAlign && !flags.plusSign && !flags.spaceSign && !flags.zeroPad && !conversion.width &&
           !conversion.precision;
}

std::u16string plainDecimal(std::int64_t value) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return std::u16string(digits.data(), end);
}

std::u16string formatInteger(const ResolvedConversion& conversion, const Number& number) {
    const char type = conversion.type;
    const bool isSigned = type == 'd' || type == 'i';
    if (const auto* whole = std::get_if<std::int64_t>(&number.exact)) {
        if (isSigned && isPlainDecimal(conversion)) return plainDecimal(*whole);
        if (isSigned)
            return printC(cFormat(conversion, type, "ll", conversion.precision), static_cast<long long>(*whole));
        if (*whole >= 0)
            return printC(cFormat(conversion, type, "ll", conversion.precision),
                          static_cast<unsigned long long>(*whole));
    } else if (const auto* positive = std::get_if<std::uint64_t>(&number.exact)) {
        return printC(cFormat(conversion, isSigned ? 'u' : type, "ll", conversion.precision),
                      static_cast<unsigned long long>(*positive));
    } else if (number.value == std::trunc(number.value) && (isSigned || (type == 'u' && number.value > 0))) {
        ResolvedConversion whole = conversion;
        whole.flags.alternate = false;
        return printC(cFormat(whole, 'f', "", 0), number.value);
    }
    return asExponent(conversion, number.value);
}

std::u16string formatCharacter(const ResolvedConversion& conversion, const Number& number) {
    const auto* code = std::get_if<std::int64_t>(&number.exact);
    if (code == nullptr || *code < 0 || *code > 0xFFFF) return asExponent(conversion, number.value);
    return pad(conversion, std::u16string(1, static_cast<char16_t>(*code)));
}

std::u16string formatNumberAsText(const ResolvedConversion& conversion, const Number& number) {
    if (const auto* whole = std::get_if<std::int64_t>(&number.exact))
        return printC(cFormat(conversion, 'd', "ll", std::nullopt), static_cast<long long>(*whole));
    if (const auto* positive = std::get_if<std::uint64_t>(&number.exact))
        return printC(cFormat(conversion, 'u', "ll", std::nullopt), static_cast<unsigned long long>(*positive));
    return printC(cFormat(conversion, 'g', "", conversion.precision), number.value);
}

std::u16string formatText(const ResolvedConversion& conversion, const std::u16string& units) {
    if (conversion.type == 's' && conversion.precision)
        return pad(conversion, units.substr(0, static_cast<std::size_t>(*conversion.precision)));
    return pad(conversion, units);
}

}  // namespace

std::u16string formatElement(const ResolvedConversion& conversion, const Element& element) {
    if (const auto* text = std::get_if<Text>(&element)) return formatText(conversion, text->units);
    const Number& number = std::get<Number>(element);
    if (!std::isfinite(number.value)) return nonFinite(conversion, number.value);
    switch (conversion.type) {
        case 'c': return formatCharacter(conversion, number);
        case 's': return formatNumberAsText(conversion, number);
        case 'f':
        case 'e':
        case 'E':
        case 'g':
        case 'G': return printC(cFormat(conversion, conversion.type, "", conversion.precision), number.value);
        default: return formatInteger(conversion, number);
    }
}

}  // namespace orrery::interp::detail
