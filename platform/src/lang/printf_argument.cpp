// The typed format argument: its text form for the warning log and its ordering.
#include <orrery/lang/printf_argument.hpp>

#include <orrery/text/text.hpp>

#include <charconv>
#include <system_error>
#include <type_traits>

namespace orrery::lang {
namespace {

// Integers in decimal; doubles in their shortest form that reads back exactly.
template <class Number>
std::u16string numberText(Number value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return text::asciiToUtf16(std::string_view(buffer, static_cast<std::size_t>(result.ptr - buffer)));
}

}  // namespace

std::u16string PrintfArgument::getTypeAndValue(std::u16string& valueOut) const {
    return std::visit(
        [&valueOut](const auto& value) -> std::u16string {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, std::u16string>) {
                if (value.size() == 1) {
                    valueOut = numberText(static_cast<std::uint32_t>(value.front()));
                    return u"char";
                }
                valueOut = value;
                return u"string";
            } else {
                valueOut = numberText(value);
                if constexpr (std::is_same_v<T, std::int32_t>) return u"int32";
                if constexpr (std::is_same_v<T, std::uint32_t>) return u"uint32";
                if constexpr (std::is_same_v<T, std::int64_t>) return u"int64";
                if constexpr (std::is_same_v<T, std::uint64_t>) return u"uint64";
                if constexpr (std::is_same_v<T, double>) return u"double";
            }
        },
        value_);
}

bool PrintfArgument::operator==(const PrintfArgument& other) const { return (*this <=> other) == 0; }

std::weak_ordering PrintfArgument::operator<=>(const PrintfArgument& other) const {
    if (value_.index() != other.value_.index()) return value_.index() <=> other.value_.index();
    return std::visit(
        [&other](const auto& mine) -> std::weak_ordering {
            using T = std::decay_t<decltype(mine)>;
            const T& theirs = std::get<T>(other.value_);
            if constexpr (std::is_same_v<T, double>) {
                return std::weak_order(mine, theirs);
            } else {
                return mine <=> theirs;
            }
        },
        value_);
}

}  // namespace orrery::lang
