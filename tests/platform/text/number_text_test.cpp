// Tests of reading numbers from text.
#include "tests/support/decimal_comma_locale.hpp"

#include <orrery/text/number_text.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>

using orrery::text::parseDouble;

namespace {
constexpr double kInf = std::numeric_limits<double>::infinity();
}

TEST(ParseDouble, ReadsWhatTheCLocaleReads) {
    const std::pair<const char*, double> cases[] = {
        {"1.5", 1.5},
        {".5", 0.5},
        {"2.", 2},
        {"-2.5e-3", -2.5e-3},
        {"+7", 7},
        {"1E3", 1000},
        {"  \t4 \n", 4},
        {"0x1.8p1", 3},
        {"-0X10", -16},
        {"0x.8", 0.5},
        {"Inf", kInf},
        {"-infinity", -kInf},
        {"4e-320", 4e-320},
        // Out of range: the leading digit and the exponent together tell too large from too small.
        {"1e400", kInf},
        {"-1e400", -kInf},
        {"1e-400", 0},
        {"0x1p99999", kInf},
        {"0.000000001e400", kInf},
        {"100000000000e-400", 0},
        {"1e99999999999999999999999", kInf},
        {"1e-99999999999999999999999", 0},
    };
    for (const auto& [text, expected] : cases) {
        SCOPED_TRACE(text);
        const auto number = parseDouble(text);
        ASSERT_TRUE(number.has_value());
        EXPECT_EQ(*number, expected);
    }
    for (const char* text : {"NaN", "nan", "-NaN"}) EXPECT_TRUE(std::isnan(parseDouble(text).value_or(0))) << text;
}

TEST(ParseDouble, RefusesAnythingButOneNumber) {
    for (const char* text : {"", "   ", "1.5x", "1,5", "1e", "--1", "+-1", "-+1", "++1", "0x", "0x-1", "0xinf",
                             "infinite", "1 2", ". 5", "x1", "0x1p", "\xC2\xA0\x31"}) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(parseDouble(text).has_value());
    }
}

TEST(ParseDouble, IgnoresADecimalCommaLocale) {
    ORRERY_USE_DECIMAL_COMMA_LOCALE();
    EXPECT_EQ(std::strtod("1.5", nullptr), 1.0) << "the C library itself reads up to the point";
    EXPECT_EQ(parseDouble("1.5"), 1.5);
    EXPECT_FALSE(parseDouble("1,5").has_value());
}
