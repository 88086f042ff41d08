// Display of values: the one-line forms, bodies of the other kinds, and what
// disp shows, including values that are hard to show. Cells and most display
// forms are proved by the display_* script tests.
#include "shell/display.hpp"
#include "tests/support/builtin_call.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

using namespace orrery;
using orrery::testing::row;
using value::ClassId;
using value::Dims;
using value::ValueArray;

namespace {}  // namespace

TEST(Display, ShowsEachKindOfValue) {
    ValueArray structValue = ValueArray::structArray(Dims{1, 1}, {"id", "unset"});
    structValue.setField(0, "id", ValueArray::chars(u"a:b"));
    ValueArray wide = ValueArray::zeros(ClassId::Int64, Dims{1, 1});
    wide.mutableData<std::int64_t>()[0] = std::numeric_limits<std::int64_t>::min();
    ValueArray brokenText = ValueArray::chars(std::u16string(u"x") + char16_t(0xD800));
    // A value, then what a statement and disp show of it.
    const std::tuple<const char*, ValueArray, const char*, const char*> cases[] = {
        {"negative zero", ValueArray::scalar(-0.0), "v = 0\n", "0\n"},
        {"mixed row", row({1, 0.5, -2}), "v =\n     1.0000    0.5000   -2.0000\n", "     1.0000    0.5000   -2.0000\n"},
        {"specials", row({NAN, INFINITY, -INFINITY}), "v =\n     NaN    Inf   -Inf\n", "     NaN    Inf   -Inf\n"},
        {"int64 limit", wide, "v = -9223372036854775808\n", "-9223372036854775808\n"},
        {"logical", ValueArray::logicals(Dims{1, 2}, {true, false}), "v =\n  1x2 logical array\n    1   0\n",
         "    1   0\n"},
        {"char matrix", ValueArray::charArray(Dims{2, 2}, u"acbd"), "v =\n  2x2 char array\n    'ab'\n    'cd'\n",
         "ab\ncd\n"},
        {"unpaired surrogate", brokenText, "v = 'x\xEF\xBF\xBD'\n", "x\xEF\xBF\xBD\n"},
        {"missing string", ValueArray::missingString(), "v = <missing>\n", "<missing>\n"},
        {"empty double", ValueArray(), "v = 0x0 empty double\n", ""},
        {"struct", structValue, "v =\n  struct with fields:\n       id: 'a:b'\n    unset: []\n",
         "       id: 'a:b'\n    unset: []\n"},
        {"struct array", ValueArray::structArray(Dims{2, 1}, {"a"}), "v =\n  2x1 struct array with fields:\n    a\n",
         "  2x1 struct array with fields:\n    a\n"},
        {"empty struct", ValueArray::structArray(Dims{0, 0}), "v =\n  0x0 struct array with no fields.\n",
         "  0x0 struct array with no fields.\n"},
    };
    for (const auto& [what, value, display, disp] : cases) {
        SCOPED_TRACE(what);
        EXPECT_EQ(shell::displayText("v", value), display);
        EXPECT_EQ(shell::dispText(value), disp);
    }
}
