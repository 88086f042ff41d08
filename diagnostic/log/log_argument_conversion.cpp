// Argument texts of a warning log turned back into typed values.
#include "diagnostic/log/log_argument_conversion.hpp"

#include <orrery/except/internal_error.hpp>

#include <boost/lexical_cast.hpp>

#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>
#include <typeinfo>
#include <utility>

namespace orrery::lang::diagnostic {
namespace {

constexpr std::array<std::pair<std::string_view, LogArgType>, 7> kTypeNames{{
    {"char", LogArgType::Char},
    {"int32", LogArgType::Int32},
    {"uint32", LogArgType::UInt32},
    {"int64", LogArgType::Int64},
    {"uint64", LogArgType::UInt64},
    {"double", LogArgType::Double},
    {"string", LogArgType::String},
}};

// Numbers are plain ASCII; a text with any other character cannot convert.
template <class Number>
std::string narrowNumber(const std::u16string& text) {
    std::string narrow(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] > 0x7F) throw boost::bad_lexical_cast(typeid(std::u16string), typeid(Number));
        narrow[i] = static_cast<char>(text[i]);
    }
    return narrow;
}

template <class Number>
Number lexicalNumber(const std::u16string& text) {
    const std::string narrow = narrowNumber<Number>(text);
    return boost::lexical_cast<Number>(narrow.data(), narrow.size());
}

// A plain decimal ("-12.5", "1e-3", ".5", "+2."): an optional sign, digits with
// at most one point and at least one digit, then an optional exponent with digits.
bool isPlainDecimal(std::string_view text) {
    std::size_t i = text.empty() || (text[0] != '+' && text[0] != '-') ? 0 : 1;
    const auto digits = [&] {
        const std::size_t from = i;
        while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i;
        return i - from;
    };
    std::size_t mantissa = digits();
    if (i < text.size() && text[i] == '.') {
        ++i;
        mantissa += digits();
    }
    if (mantissa == 0) return false;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
        if (digits() == 0) return false;
    }
    return i == text.size();
}

// The stream extraction behind lexical_cast reads a plain decimal as the C
// library's correctly rounded conversion does, which std::from_chars gives without
// the stream; anything else, and any number out of range, goes through
// lexical_cast itself.
double lexicalDouble(const std::u16string& text) {
    const std::string narrow = narrowNumber<double>(text);
    if (isPlainDecimal(narrow)) {
        const char* first = narrow.data() + (narrow[0] == '+' ? 1 : 0);
        double value = 0;
        const auto [end, error] = std::from_chars(first, narrow.data() + narrow.size(), value);
        if (error == std::errc() && end == narrow.data() + narrow.size()) return value;
    }
    return boost::lexical_cast<double>(narrow.data(), narrow.size());
}

}  // namespace

std::optional<LogArgType> logArgTypeNamed(std::string_view name) {
    for (const auto& [typeName, type] : kTypeNames)
        if (typeName == name) return type;
    return std::nullopt;
}

PrintfArgument convertLogArgument(LogArgType type, std::u16string text) {
    switch (type) {
        case LogArgType::Char: return std::u16string(1, static_cast<char16_t>(lexicalNumber<std::uint16_t>(text)));
        case LogArgType::Int32: return lexicalNumber<std::int32_t>(text);
        case LogArgType::UInt32: return lexicalNumber<std::uint32_t>(text);
        case LogArgType::Int64: return lexicalNumber<std::int64_t>(text);
        case LogArgType::UInt64: return lexicalNumber<std::uint64_t>(text);
        case LogArgType::Double: return lexicalDouble(text);
        case LogArgType::String: return text;
    }
    except::internalError("warning log reader", "unknown argument type");
}

}  // namespace orrery::lang::diagnostic
