// Tests of turning argument texts of a warning log back into typed values.
#include "diagnostic/log/log_argument_conversion.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

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

TEST(LogArgumentConversion, IntegersWrapNegativeUnsignedTextsAndRefuseAnythingElseOutOfRange) {
    struct Case {
        LogArgType type;
        std::u16string text;
        std::optional<PrintfArgument> expected;  // nothing: bad_lexical_cast
    };
    const Case cases[] = {
        {LogArgType::Char, u"-1", PrintfArgument(std::u16string(u"\uFFFF"))},
        {LogArgType::Char, u"65536", std::nullopt},
        {LogArgType::Int32, u"-2147483648", PrintfArgument(std::int32_t{-2147483647 - 1})},
        {LogArgType::Int32, u" 7", std::nullopt},
        {LogArgType::Int32, u"\uFF17", std::nullopt},  // a full-width digit
        {LogArgType::UInt32, u"-4294967295", PrintfArgument(std::uint32_t{1})},
        {LogArgType::UInt32, u"4294967296", std::nullopt},
        {LogArgType::Int64, u"9223372036854775808", std::nullopt},
        {LogArgType::UInt64, u"-1", PrintfArgument(std::numeric_limits<std::uint64_t>::max())},
        {LogArgType::UInt64, u"18446744073709551616", std::nullopt},
        {LogArgType::Double, u"", std::nullopt},
        {LogArgType::String, u" 7 #", PrintfArgument(std::u16string(u" 7 #"))},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(orrery::text::utf16ToUtf8(c.text) + " as type " + std::to_string(static_cast<int>(c.type)));
        if (c.expected)
            EXPECT_EQ(convertLogArgument(c.type, c.text), *c.expected);
        else
            EXPECT_THROW(convertLogArgument(c.type, c.text), boost::bad_lexical_cast);
    }
}

// Plain decimals take a shorter way than the stream; both must give the same double.
TEST(LogArgumentConversion, DoublesReadAsTheLexicalConversionReadsThem) {
    const char* const texts[] = {"0",     "-0",       "+1.",     ".5",    "-.5e-3", "1E+05",
                                 "0.1",   "2.5e-324", "1e-400",  "1e309", "-1e309", "123456789012345678901234567890",
                                 ".",     "+",        "1e",      "1e+",   "1..2",   "--1",
                                 "1e5.5", "0x1p3",    "1,5",     " 1",    "1 ",     "e5",
                                 "-INF",  "Infinity", "infinit", "nan",   "-NaN",   "+nan"};
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        const std::string narrow = text;
        std::optional<double> expected;
        try {
            expected = boost::lexical_cast<double>(narrow);
        } catch (const boost::bad_lexical_cast&) {
        }
        const std::u16string wide(narrow.begin(), narrow.end());
        if (!expected) {
            EXPECT_THROW(convertLogArgument(LogArgType::Double, wide), boost::bad_lexical_cast);
            continue;
        }
        const double value = std::get<double>(convertLogArgument(LogArgType::Double, wide).value());
        EXPECT_EQ(std::signbit(value), std::signbit(*expected));
        if (std::isnan(*expected))
            EXPECT_TRUE(std::isnan(value));
        else
            EXPECT_EQ(value, *expected);
    }
}
