// Operators on values: implicit expansion, result classes, matrix products,
// text operators and the errors of sizes and classes that do not combine.
#include "shell/values/operators.hpp"

#include "tests/shell/values/value_notation.hpp"
#include "tests/support/expect_error.hpp"

#include <optional>

using namespace orrery::testing;
using orrery::shell::lang::Op;
using orrery::shell::values::binaryOperation;
using orrery::value::ClassId;
using orrery::value::Dims;
using orrery::value::ValueArray;

TEST(Operators, BinaryOperationsExpandScalarsAndSizes) {
    const ValueArray int8of100 = ValueArray::numericScalar(ClassId::Int8, 100);
    struct Case {
        Op op;
        ValueArray a;
        ValueArray b;
        const char* expected;  // describe() of the result, or the error's identifier
    };
    const Case cases[] = {
        {Op::Plus, row({1, 2, 3}), ValueArray::scalar(10), "double 1x3: 11 12 13"},
        {Op::Minus, ValueArray::scalar(10), row({1, 2}), "double 1x2: 9 8"},
        {Op::Plus, column({1, 2}), row({10, 20}), "double 2x2: 11 12 21 22"},
        {Op::ElementTimes, doubles(Dims{2, 2}, {1, 2, 3, 4}), column({10, 100}), "double 2x2: 10 200 30 400"},
        {Op::Times, doubles(Dims{2, 2}, {1, 3, 2, 4}), column({1, 1}), "double 2x1: 3 7"},
        {Op::Times, row({1, 2}), ValueArray::scalar(3), "double 1x2: 3 6"},
        {Op::ElementDivide, ValueArray::scalar(1), row({0, 4}), "double 1x2: inf 0.25"},
        {Op::LeftDivide, ValueArray::scalar(2), row({4, 8}), "double 1x2: 2 4"},
        {Op::ElementPower, row({2, 3}), ValueArray::scalar(2), "double 1x2: 4 9"},
        {Op::Plus, int8of100, ValueArray::scalar(100), "int8 1x1: 127"},
        {Op::Plus, ValueArray::numericScalar(ClassId::Single, 1), ValueArray::scalar(1), "single 1x1: 2"},
        {Op::Plus, ValueArray::logicalScalar(true), ValueArray::logicalScalar(true), "double 1x1: 2"},
        {Op::Plus, ValueArray::chars(u"a"), ValueArray::scalar(1), "double 1x1: 98"},
        {Op::Less, row({1, 5}), ValueArray::scalar(3), "logical 1x2: 1 0"},
        {Op::And, row({1, 0}), row({1, 1}), "logical 1x2: 1 0"},
        {Op::Plus, ValueArray::string(u"a"), ValueArray::chars(u"bc"), "string 1x1: \"abc\""},
        {Op::Equal, ValueArray::strings(Dims{1, 2}, {u"a", std::nullopt}), ValueArray::string(u"a"),
         "logical 1x2: 1 0"},
        {Op::Plus, row({1, 2, 3}), row({1, 2}), "ORRERY:shell:sizeMismatch"},
        {Op::Times, row({1, 2}), row({3, 4}), "ORRERY:shell:innerDimensions"},
        {Op::Divide, row({1, 2}), row({1, 2}), "ORRERY:shell:matrixOperation"},
        {Op::Power, row({1, 2}), ValueArray::scalar(2), "ORRERY:shell:matrixOperation"},
        {Op::Plus, int8of100, ValueArray::numericScalar(ClassId::Int16, 1), "ORRERY:shell:unsupportedOperation"},
        {Op::Plus, ValueArray::cell(Dims{1, 1}), ValueArray::scalar(1), "ORRERY:shell:unsupportedOperation"},
        {Op::Minus, ValueArray::string(u"a"), ValueArray::string(u"b"), "ORRERY:shell:unsupportedOperation"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(describe(c.a) + " " + std::string(orrery::shell::values::operatorSpelling(c.op)) + " " +
                     describe(c.b));
        if (std::string_view(c.expected).starts_with("ORRERY:"))
            EXPECT_MSGID(binaryOperation(c.op, c.a, c.b), c.expected);
        else
            EXPECT_EQ(describe(binaryOperation(c.op, c.a, c.b)), c.expected);
    }
}

TEST(Operators, RangesHoldEveryStepFromStartToStop) {
    using orrery::shell::values::makeRange;
    struct Case {
        ValueArray start;
        std::optional<double> step;
        ValueArray stop;
        const char* expected;
    };
    const Case cases[] = {
        {ValueArray::scalar(1), std::nullopt, ValueArray::scalar(4), "double 1x4: 1 2 3 4"},
        {ValueArray::scalar(5), -2, ValueArray::scalar(0), "double 1x3: 5 3 1"},
        {ValueArray::scalar(0), 0.25, ValueArray::scalar(1), "double 1x5: 0 0.25 0.5 0.75 1"},
        {ValueArray::scalar(7), std::nullopt, ValueArray::scalar(7), "double 1x1: 7"},
        {ValueArray::scalar(2), std::nullopt, ValueArray::scalar(1), "double 1x0:"},
        {ValueArray::chars(u"a"), std::nullopt, ValueArray::chars(u"c"), "char 1x3: 'abc'"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.expected);
        const ValueArray step = ValueArray::scalar(c.step.value_or(1));
        EXPECT_EQ(describe(makeRange(c.start, c.step ? &step : nullptr, c.stop)), c.expected);
    }
}
