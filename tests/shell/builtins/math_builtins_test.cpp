// Tests of sort, min and max, and the values of the reductions.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <gmock/gmock.h>

#include <cmath>

using namespace builtin_test;

namespace {
const double notANumber = std::nan("");

// NaN-aware comparison of element lists.
void expectElements(const ValueArray& actual, const std::vector<double>& expected) {
    EXPECT_THAT(numbers(actual), ::testing::Pointwise(::testing::NanSensitiveDoubleEq(), expected));
}
}  // namespace

TEST(SortBuiltin, SortsWithIndexStablyAndPlacesNaN) {
    // Inputs, then the sorted elements and their indices.
    const std::tuple<const char*, std::vector<ValueArray>, std::vector<double>, std::vector<double>> cases[] = {
        {"ties keep their order", {row({2, 1, 2, 1})}, {1, 1, 2, 2}, {2, 4, 1, 3}},
        {"descending ties keep their order", {row({2, 1, 2}), txt(u"descend")}, {2, 2, 1}, {1, 3, 2}},
        {"NaN last", {row({notANumber, 1, 0})}, {0, 1, notANumber}, {3, 2, 1}},
        {"NaN first when descending", {row({1, notANumber, 2}), txt(u"Descend")}, {notANumber, 2, 1}, {2, 3, 1}},
        {"rows with dim 2", {matrix(2, 2, {4, 3, 1, 2}), num(2)}, {1, 2, 4, 3}, {2, 2, 1, 1}},
        {"dim and mode", {matrix(2, 2, {4, 3, 1, 2}), num(1), txt(u"descend")}, {4, 3, 2, 1}, {1, 2, 2, 1}},
    };
    for (const auto& [name, inputs, sorted, index] : cases) {
        SCOPED_TRACE(name);
        const auto out = call("sort", 2, inputs);
        expectElements(out[0], sorted);
        expectElements(out[1], index);
        EXPECT_EQ(out[0].dims(), inputs[0].dims());
    }
    EXPECT_EQ(call1("sort", {txt(u"cab")}).textUtf8(), "abc") << "char stays char";
    EXPECT_MSGID(call1("sort", {row({1}), txt(u"sideways")}), "ORRERY:host:badOption");
    EXPECT_MSGID(call1("sort", {cellRow({num(1)})}), "ORRERY:host:notNumeric");
    EXPECT_MSGID(call1("sort", {row({1}), num(1), num(1)}), "ORRERY:host:notText");
    EXPECT_MSGID(call("sort", 3, {num(1)}), "ORRERY:tooManyOutputs");
}

TEST(ExtremaBuiltins, FindValuesAndIndicesIgnoringNaN) {
    auto out = call("max", 2, {row({1, 5, 5})});
    EXPECT_EQ(numbers(out[1]), std::vector<double>{2}) << "the first of equal values";
    out = call("min", 2, {row({notANumber, 2, 1})});
    EXPECT_EQ(numbers(out[0]), std::vector<double>{1});
    EXPECT_EQ(numbers(out[1]), std::vector<double>{3});
    expectElements(call1("min", {row({notANumber, notANumber})}), {notANumber});
    expectElements(call1("max", {matrix(2, 2, {1, 4, 3, 2}), ValueArray(), num(2)}), {3, 4});
    expectElements(call1("max", {row({1, 4, notANumber}), num(3)}), {3, 4, 3});
    const ValueArray mixed = call1("min", {call1("int8", {row({5, -5})}), num(2.6)});
    EXPECT_EQ(mixed.className(), "int8");
    expectElements(mixed, {3, -5});
    EXPECT_MSGID(call1("max", {row({1, 2}), row({1, 2, 3})}), "ORRERY:host:sizeMismatch");
    EXPECT_MSGID(call1("max", {row({1, 2}), num(1), num(1)}), "ORRERY:invalidInput");
    // Two arrays compared give no index.
    EXPECT_MSGID(call("max", 2, {num(1), num(2)}), "ORRERY:tooManyOutputs");
}

TEST(Reductions, AnyIgnoresNaNAndAllCountsItAsNonzero) {
    expectElements(call1("any", {row({0, notANumber})}), {0});
    expectElements(call1("all", {row({1, notANumber})}), {1});
    expectElements(call1("all", {ValueArray()}), {1});
    expectElements(call1("any", {matrix(2, 2, {0, 0, 0, 3})}), {0, 1});
    expectElements(call1("sum", {matrix(2, 2, {1, 2, 3, 4}), num(2)}), {4, 6});
    expectElements(call1("isinf", {row({-INFINITY, notANumber, 1})}), {1, 0, 0});
    EXPECT_MSGID(call1("sum", {row({1}), num(1.5)}), "ORRERY:host:badDimension");
    EXPECT_MSGID(call1("abs", {str(u"x")}), "ORRERY:host:notNumeric");
}
