// Tests of turning argument texts of a warning log back into typed values.
#include "diagnostic/log/log_argument_conversion.hpp"

#include "tests/diagnostic/log/printf_argument_print.hpp"

#include <gtest/gtest.h>
#include <boost/lexical_cast.hpp>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

using orrery::lang::PrintfArgument;
using orrery::lang::diagnostic::convertLogArgument;
using orrery::lang::diagnostic::LogArgType;
using orrery::lang::diagnostic::logArgTypeNamed;

TEST(LogArgumentConversion, TypeNamesAreExact) {
    EXPECT_EQ(logArgTypeNamed("char"), LogArgType::Char);
    EXPECT_EQ(logArgTypeNamed("uint64"), LogArgType::UInt64);
    EXPECT_EQ(logArgTypeNamed("string"), LogArgType::String);
    EXPECT_EQ(logArgTypeNamed("Int32"), std::nullopt);
    EXPECT_EQ(logArgTypeNamed("int"), std::nullopt);
}

TEST(LogArgumentConversion, FollowsTheSignWrapAndLimitRules) {
    struct Case {
        LogArgType type;
        std::u16string text;
        std::optional<PrintfArgument> expected;  // nothing: bad_lexical_cast
    };
    using L = std::numeric_limits<std::int64_t>;
    const double inf = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {LogArgType::Char, u"65", PrintfArgument(std::u16string(u"A"))},
        {LogArgType::Char, u"+66", PrintfArgument(std::u16string(u"B"))},
        {LogArgType::Char, u"-1", PrintfArgument(std::u16string(u"\uFFFF"))},
        {LogArgType::Char, u"65536", std::nullopt},
        {LogArgType::Char, u"A", std::nullopt},
        {LogArgType::Int32, u"2147483647", PrintfArgument(std::int32_t{2147483647})},
        {LogArgType::Int32, u"-2147483648", PrintfArgument(std::int32_t{-2147483647 - 1})},
        {LogArgType::Int32, u"+7", PrintfArgument(std::int32_t{7})},
        {LogArgType::Int32, u"2147483648", std::nullopt},
        {LogArgType::Int32, u"-2147483649", std::nullopt},
        {LogArgType::Int32, u" 7", std::nullopt},
        {LogArgType::Int32, u"7 ", std::nullopt},
        {LogArgType::Int32, u"+-7", std::nullopt},
        {LogArgType::Int32, u"\uFF17", std::nullopt},  // a full-width digit
        {LogArgType::UInt32, u"-1", PrintfArgument(std::uint32_t{4294967295U})},
        {LogArgType::UInt32, u"-4294967295", PrintfArgument(std::uint32_t{1})},
        {LogArgType::UInt32, u"4294967296", std::nullopt},
        {LogArgType::Int64, u"9223372036854775807", PrintfArgument(L::max())},
        {LogArgType::Int64, u"-9223372036854775808", PrintfArgument(L::min())},
        {LogArgType::Int64, u"9223372036854775808", std::nullopt},
        {LogArgType::UInt64, u"-1", PrintfArgument(std::numeric_limits<std::uint64_t>::max())},
        {LogArgType::UInt64, u"18446744073709551616", std::nullopt},
        {LogArgType::Double, u"-1.5e3", PrintfArgument(-1500.0)},
        {LogArgType::Double, u"0.1", PrintfArgument(0.1)},
        {LogArgType::Double, u"1.7976931348623157e308", PrintfArgument(std::numeric_limits<double>::max())},
        {LogArgType::Double, u"-INF", PrintfArgument(-inf)},
        {LogArgType::Double, u"Infinity", PrintfArgument(inf)},
        {LogArgType::Double, u"1e", std::nullopt},
        {LogArgType::Double, u"1e+", std::nullopt},
        {LogArgType::Double, u"1.5x", std::nullopt},
        {LogArgType::Double, u"infinit", std::nullopt},
        {LogArgType::String, u"", PrintfArgument(std::u16string())},
        {LogArgType::String, u" 7 #", PrintfArgument(std::u16string(u" 7 #"))},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.text.begin(), c.text.end()) + " as type " +
                     std::to_string(static_cast<int>(c.type)));
        if (c.expected)
            EXPECT_EQ(convertLogArgument(c.type, c.text), *c.expected);
        else
            EXPECT_THROW(convertLogArgument(c.type, c.text), boost::bad_lexical_cast);
    }
    for (LogArgType type : {LogArgType::Char, LogArgType::Int32, LogArgType::UInt64, LogArgType::Double})
        EXPECT_THROW(convertLogArgument(type, u""), boost::bad_lexical_cast);
}

TEST(LogArgumentConversion, NotANumberKeepsItsSign) {
    for (const char16_t* text : {u"nan", u"-NaN", u"+nan"}) {
        const auto value = std::get<double>(convertLogArgument(LogArgType::Double, text).value());
        EXPECT_TRUE(std::isnan(value));
        EXPECT_EQ(std::signbit(value), text[0] == u'-');
    }
}

// Plain decimals take a shorter way than the stream; both must give the same double.
TEST(LogArgumentConversion, DoublesReadAsTheLexicalConversionReadsThem) {
    const char* const texts[] = {
        "0",   "-0",       "+1.",      ".5",     "-.5e-3", "1e5",    "1E+05",
        "0.1", "2.5e-324", "4.9e-324", "1e-400", "1e309",  "-1e309", "123456789012345678901234567890",
        ".",   "+",        "1e",       "1e+",    "1..2",   "1.2.3",  "--1",
        "+-1", "1e5.5",    "0x1p3",    "1,5",    " 1",     "1 ",     "e5"};
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        const std::string narrow = text;
        std::optional<double> expected;
        try {
            expected = boost::lexical_cast<double>(narrow);
        } catch (const boost::bad_lexical_cast&) {
        }
        const std::u16string wide(narrow.begin(), narrow.end());
        if (expected) {
            const double value = std::get<double>(convertLogArgument(LogArgType::Double, wide).value());
            EXPECT_EQ(std::signbit(value), std::signbit(*expected));
            EXPECT_EQ(value, *expected);
        } else {
            EXPECT_THROW(convertLogArgument(LogArgType::Double, wide), boost::bad_lexical_cast);
        }
    }
}
