// Tests of the typed format argument: its text form and its ordering.
#include <orrery/lang/printf_argument.hpp>
#include <orrery/text/text.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

using orrery::lang::PrintfArgument;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

std::string valueTextOf(const PrintfArgument& argument, std::string* type = nullptr) {
    std::u16string value;
    const std::u16string name = argument.getTypeAndValue(value);
    if (type) *type = orrery::text::utf16ToUtf8(name);
    return orrery::text::utf16ToUtf8(value);
}

}  // namespace

TEST(PrintfArgument, NamesEachKindAndWritesItsValue) {
    const struct {
        PrintfArgument argument;
        const char* type;
        const char* value;
    } cases[] = {
        {std::numeric_limits<std::int32_t>::min(), "int32", "-2147483648"},
        {std::numeric_limits<std::uint32_t>::max(), "uint32", "4294967295"},
        {std::numeric_limits<std::int64_t>::min(), "int64", "-9223372036854775808"},
        {std::numeric_limits<std::uint64_t>::max(), "uint64", "18446744073709551615"},
        {0.1, "double", "0.1"},
        {-kInf, "double", "-inf"},
        {kNaN, "double", "nan"},
        {std::u16string(u"A"), "char", "65"},
        {std::u16string(u"\u00e9"), "char", "233"},
        {std::u16string(u"ab"), "string", "ab"},
        {std::u16string(), "string", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        std::string type;
        EXPECT_EQ(valueTextOf(c.argument, &type), c.value);
        EXPECT_EQ(type, c.type);
    }
}

// A log reader takes a double's text back by stream extraction at precision 17.
TEST(PrintfArgument, DoubleTextReadsBackToTheSameNumber) {
    for (const double number : {0.1, -1.0 / 3, 1e300, -2.5e-310, 6.02214076e23, 123456789012345678.0}) {
        std::istringstream in(valueTextOf(number));
        in.precision(17);
        double read = 0;
        in >> read;
        EXPECT_TRUE(in.eof() && !in.fail()) << in.str();
        EXPECT_EQ(read, number) << in.str();
    }
}

TEST(PrintfArgument, OrdersByKindThenValue) {
    // Ascending; each entry is strictly less than the next.
    const std::vector<PrintfArgument> ascending = {std::int32_t{-1},
                                                   std::int32_t{2},
                                                   std::uint32_t{0},
                                                   std::int64_t{0},
                                                   std::uint64_t{0},
                                                   -kNaN,
                                                   -kInf,
                                                   -1.0,
                                                   0.0,
                                                   kInf,
                                                   kNaN,
                                                   std::u16string(),
                                                   std::u16string(u"a"),
                                                   std::u16string(u"b")};
    for (std::size_t i = 0; i + 1 < ascending.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_TRUE(ascending[i] < ascending[i + 1]);
        EXPECT_FALSE(ascending[i + 1] < ascending[i]);
        EXPECT_FALSE(ascending[i] == ascending[i + 1]);
    }
    EXPECT_EQ(PrintfArgument(kNaN), PrintfArgument(kNaN));
    EXPECT_EQ(PrintfArgument(-0.0), PrintfArgument(0.0));
    EXPECT_NE(PrintfArgument(std::int32_t{1}), PrintfArgument(1.0)) << "the kind is part of the value";
}
