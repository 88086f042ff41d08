// Argument texts of a warning log turned back into typed values.
#include "diagnostic/log/log_argument_conversion.hpp"

#include <orrery/except/internal_error.hpp>

#include <boost/lexical_cast.hpp>

#include <array>
#include <cstdint>
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
Number lexicalNumber(const std::u16string& text) {
    std::string narrow(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] > 0x7F) throw boost::bad_lexical_cast(typeid(std::u16string), typeid(Number));
        narrow[i] = static_cast<char>(text[i]);
    }
    return boost::lexical_cast<Number>(narrow);
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
        case LogArgType::Double: return lexicalNumber<double>(text);
        case LogArgType::String: return text;
    }
    except::internalError("warning log reader", "unknown argument type");
}

}  // namespace orrery::lang::diagnostic
