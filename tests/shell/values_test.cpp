// Operations on values: the refusals of operators, indexed assignment and
// concatenation, class rules, ranges and conditions.
#include "shell/values/concat.hpp"
#include "shell/values/indexing.hpp"
#include "shell/values/operators.hpp"
#include "tests/support/builtin_call.hpp"

#include "tests/support/expect_error.hpp"

#include <cmath>

using namespace orrery;
using orrery::testing::row;
using namespace orrery::shell::values;
using shell::lang::Op;
using value::ClassId;
using value::Dims;
using value::ValueArray;

namespace {

IndexArg at(std::vector<double> positions) { return {false, row(std::move(positions))}; }

}  // namespace

// Implicit expansion and the operators that succeed are proved by the operators
// script test.
TEST(Operators, RefuseWhatTheyDoNotDefine) {
    EXPECT_MSGID_TEXT(binaryOperation(Op::Plus, row({1, 2}), row({1, 2, 3})), "ORRERY:shell:sizeMismatch",
                      "The sizes 1x2 and 1x3 are not compatible for this operation.");
    EXPECT_MSGID(binaryOperation(Op::Plus, ValueArray::cell(Dims{1, 1}), row({1})),
                 "ORRERY:shell:unsupportedOperation");
    EXPECT_MSGID(binaryOperation(Op::Power, row({1, 2}), row({2})), "ORRERY:shell:matrixOperation");
    EXPECT_MSGID(binaryOperation(Op::Divide, row({1}), row({1, 2})), "ORRERY:shell:matrixOperation");
    EXPECT_MSGID(binaryOperation(Op::Times, row({1, 2}), row({1, 2})), "ORRERY:shell:innerDimensions");
    const ValueArray int8 = ValueArray::numericScalar(ClassId::Int8, 1);
    const ValueArray int16 = ValueArray::numericScalar(ClassId::Int16, 1);
    EXPECT_MSGID(binaryOperation(Op::Plus, int8, int16), "ORRERY:shell:unsupportedOperation");
}

TEST(Ranges, CountSteps) {
    // start, step, stop and the number of elements
    static const std::tuple<double, double, double, std::size_t> cases[] = {
        {0, 0.1, 1, 11}, {1, 1, 0, 0}, {5, -1, 1, 5}, {0, 0, 1, 0}, {1, 0.3, 2, 4}};
    for (const auto& [start, step, stop, count] : cases) {
        SCOPED_TRACE(stop);
        const ValueArray stepValue = ValueArray::scalar(step);
        EXPECT_EQ(makeRange(ValueArray::scalar(start), &stepValue, ValueArray::scalar(stop)).numel(), count);
    }
    EXPECT_MSGID(makeRange(ValueArray::scalar(0), nullptr, ValueArray::scalar(1e12)), "ORRERY:shell:arrayTooLarge");
}

TEST(Conditions, AreTrueWhenNonEmptyAndAllNonZero) {
    EXPECT_TRUE(isTrue(row({1, 2})));
    EXPECT_MSGID(isTrue(ValueArray::scalar(NAN)), "ORRERY:value:notLogicalConvertible");
    EXPECT_MSGID(isTrue(ValueArray::string(u"yes")), "ORRERY:shell:conditionClass");
}

// Growth and deletion that succeed are proved by the assignment script test.
TEST(IndexedAssignment, RefusesGrowthAndDeletionWithoutAShape) {
    const ValueArray square = ValueArray::zeros(ClassId::Double, Dims{2, 2});
    EXPECT_MSGID(assignIndexed(square, {at({7})}, ValueArray::scalar(1)), "ORRERY:shell:ambiguousGrowth");
    EXPECT_MSGID_TEXT(assignIndexed(row({1, 2, 3}), {at({1, 2})}, row({1, 2, 3})), "ORRERY:shell:assignmentCount",
                      "Cannot assign 3 values to 2 places.");
    const ValueArray matrix = ValueArray::doubles(Dims{2, 3}, {1, 2, 3, 4, 5, 6});
    EXPECT_MSGID(assignIndexed(matrix, {at({1}), at({2})}, ValueArray()), "ORRERY:shell:deletionShape");
}

TEST(IndexedAssignment, FollowsTheClassRules) {
    // The empty value takes the stored value's class, and strings take text.
    EXPECT_EQ(assignIndexed(ValueArray(), {at({2})}, ValueArray::chars(u"a")).classId(), ClassId::Char);
    EXPECT_EQ(assignIndexed(ValueArray::string(u"a"), {at({2})}, ValueArray::chars(u"b")).classId(), ClassId::String);
    EXPECT_MSGID(assignIndexed(ValueArray::cell(Dims{1, 1}), {at({2})}, ValueArray::scalar(1)),
                 "ORRERY:shell:assignmentClass");
}

TEST(Concatenation, ChoosesOneClass) {
    const auto yes = ValueArray::logicalScalar(true);
    // Rows to join, then the class and size of the result.
    const std::tuple<const char*, ValueRows, ClassId, Dims> cases[] = {
        {"char wins over numbers", {{ValueArray::chars(u"a"), ValueArray::scalar(66)}}, ClassId::Char, Dims{1, 2}},
        {"logicals stay logical", {{yes, yes}}, ClassId::Logical, Dims{1, 2}},
        {"string wins over char", {{ValueArray::string(u"a"), ValueArray::chars(u"bc")}}, ClassId::String, Dims{1, 2}},
        {"cells wrap other values", {{ValueArray::cell(Dims{1, 1}), ValueArray::scalar(1)}}, ClassId::Cell, Dims{1, 2}},
        {"empties take no room", {{ValueArray(), row({1, 2})}, {row({3, 4})}}, ClassId::Double, Dims{2, 2}},
        {"all empty", {{}, {}}, ClassId::Double, Dims{0, 0}},
    };
    for (const auto& [what, rows, classId, dims] : cases) {
        SCOPED_TRACE(what);
        const ValueArray joined = concatenate(rows);
        EXPECT_EQ(joined.classId(), classId);
        EXPECT_EQ(joined.dims(), dims);
    }
    EXPECT_MSGID(concatenate({{ValueArray::structArray(Dims{1, 1}), ValueArray::scalar(1)}}),
                 "ORRERY:shell:concatenationClass");
    EXPECT_MSGID(concatenate({{row({1, 2})}, {row({1})}}), "ORRERY:shell:concatenationSize");
}
