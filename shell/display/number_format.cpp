// Formatting of numbers for display, on std::to_chars.
#include "shell/display/number_format.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace orrery::shell::render {
namespace {

using value::ClassId;

// Whole numbers up to this size are written without decimals.
constexpr double kIntegerLimit = 1e10;
// Fixed layout covers magnitudes in [kFixedLow, kFixedHigh).
constexpr double kFixedLow = 1e-4;
constexpr double kFixedHigh = 1e5;

std::string toChars(double number, std::chars_format format, int precision) {
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, number, format, precision);
    return std::string(buffer, result.ptr);
}

// The exact text of an element of a 64-bit integer class, which a double
// could not hold.
std::string wideInteger(const value::ValueArray& numbers, std::size_t i) {
    if (numbers.is(ClassId::Int64)) return std::to_string(numbers.data<std::int64_t>()[i]);
    return std::to_string(numbers.data<std::uint64_t>()[i]);
}

}  // namespace

NumberLayout chooseLayout(const value::ValueArray& numbers) {
    if (value::isIntegerClass(numbers.classId()) || numbers.is(ClassId::Logical) || numbers.is(ClassId::Char))
        return NumberLayout::Integer;
    bool whole = true;
    double largest = 0;
    double smallest = INFINITY;
    for (std::size_t i = 0; i < numbers.numel(); ++i) {
        const double number = numbers.realAt(i);
        if (!std::isfinite(number)) continue;
        const double magnitude = std::fabs(number);
        whole = whole && number == std::trunc(number);
        largest = std::max(largest, magnitude);
        if (magnitude > 0) smallest = std::min(smallest, magnitude);
    }
    if (whole && largest < kIntegerLimit) return NumberLayout::Integer;
    if (largest < kFixedHigh && smallest >= kFixedLow) return NumberLayout::Fixed;
    return NumberLayout::Scientific;
}

std::string formatElement(const value::ValueArray& numbers, std::size_t i, NumberLayout layout) {
    if (numbers.is(ClassId::Int64) || numbers.is(ClassId::UInt64)) return wideInteger(numbers, i);
    const double number = numbers.realAt(i);
    if (std::isnan(number)) return "NaN";
    if (std::isinf(number)) return number > 0 ? "Inf" : "-Inf";
    switch (layout) {
        case NumberLayout::Integer: return toChars(number == 0 ? 0.0 : number, std::chars_format::fixed, 0);
        case NumberLayout::Fixed: return number == 0 ? "0" : toChars(number, std::chars_format::fixed, 4);
        case NumberLayout::Scientific: return number == 0 ? "0" : toChars(number, std::chars_format::scientific, 4);
    }
    return {};
}

std::vector<std::string> formatAll(const value::ValueArray& numbers) {
    const NumberLayout layout = chooseLayout(numbers);
    std::vector<std::string> texts;
    texts.reserve(numbers.numel());
    for (std::size_t i = 0; i < numbers.numel(); ++i) texts.push_back(formatElement(numbers, i, layout));
    return texts;
}

}  // namespace orrery::shell::render
