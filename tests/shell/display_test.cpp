// Display of values: the one-line forms, bodies of the other kinds, and what
// disp shows, including values that are hard to show.
#include "shell/display.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

using namespace orrery;
using value::ClassId;
using value::Dims;
using value::ValueArray;

namespace {

ValueArray row(std::vector<double> values) {
    const std::size_t n = values.size();
    return ValueArray::doubles(Dims{1, n}, std::move(values));
}

struct DisplayCase {
    const char* what;
    ValueArray value;
    const char* display;
    const char* disp;
};

}  // namespace

TEST(Display, ShowsEachKindOfValue) {
    ValueArray structValue = ValueArray::structArray(Dims{1, 1}, {"id", "unset"});
    structValue.setField(0, "id", ValueArray::chars(u"a:b"));
    ValueArray wide = ValueArray::zeros(ClassId::Int64, Dims{1, 1});
    wide.mutableData<std::int64_t>()[0] = std::numeric_limits<std::int64_t>::min();
    ValueArray brokenText = ValueArray::chars(std::u16string(u"x") + char16_t(0xD800));
    const DisplayCase cases[] = {
        {"whole number", ValueArray::scalar(42), "v = 42\n", "42\n"},
        {"negative zero", ValueArray::scalar(-0.0), "v = 0\n", "0\n"},
        {"fraction", ValueArray::scalar(0.125), "v = 0.1250\n", "0.1250\n"},
        {"mixed row", row({1, 0.5, -2}), "v =\n     1.0000    0.5000   -2.0000\n",
         "     1.0000    0.5000   -2.0000\n"},
        {"specials", row({NAN, INFINITY, -INFINITY}), "v =\n     NaN    Inf   -Inf\n", "     NaN    Inf   -Inf\n"},
        {"int64 limit", wide, "v = -9223372036854775808\n", "-9223372036854775808\n"},
        {"logical", ValueArray::logicals(Dims{1, 2}, {true, false}), "v =\n  1x2 logical array\n    1   0\n",
         "    1   0\n"},
        {"char row", ValueArray::chars(u"orbit"), "v = 'orbit'\n", "orbit\n"},
        {"unpaired surrogate", brokenText, "v = 'x\xEF\xBF\xBD'\n", "x\xEF\xBF\xBD\n"},
        {"string", ValueArray::string(u"Io"), "v = \"Io\"\n", "Io\n"},
        {"missing string", ValueArray::missingString(), "v = <missing>\n", "<missing>\n"},
        {"empty double", ValueArray(), "v = 0x0 empty double\n", ""},
        {"empty cell", ValueArray::cell(Dims{0, 3}), "v = 0x3 empty cell\n", ""},
        {"struct", structValue, "v =\n  struct with fields:\n       id: 'a:b'\n    unset: []\n",
         "       id: 'a:b'\n    unset: []\n"},
        {"struct array", ValueArray::structArray(Dims{2, 1}, {"a"}),
         "v =\n  2x1 struct array with fields:\n    a\n", "  2x1 struct array with fields:\n    a\n"},
        {"empty struct", ValueArray::structArray(Dims{0, 0}),
         "v =\n  0x0 struct array with no fields.\n", "  0x0 struct array with no fields.\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(shell::displayText("v", c.value), c.display);
        EXPECT_EQ(shell::dispText(c.value), c.disp);
    }
}

TEST(Display, CellsSummariseTheirElements) {
    ValueArray cell = ValueArray::cell(Dims{2, 2});
    cell.setCellAt(0, ValueArray::scalar(5));
    cell.setCellAt(1, ValueArray::string(u"s"));
    cell.setCellAt(2, ValueArray::zeros(ClassId::Double, Dims{2, 3}));
    cell.setCellAt(3, ValueArray::chars(u"text"));
    EXPECT_EQ(shell::displayText("c", cell),
              "c =\n"
              "  2x2 cell array\n"
              "    {[5]}    {2x3 double}\n"
              "    {\"s\"}    {'text'}\n");
}

TEST(Display, CharMatricesShowOneRowPerLine) {
    const ValueArray chars = ValueArray::charArray(Dims{2, 2}, u"acbd");
    EXPECT_EQ(shell::displayText("m", chars), "m =\n  2x2 char array\n    'ab'\n    'cd'\n");
    EXPECT_EQ(shell::dispText(chars), "ab\ncd\n");
}
