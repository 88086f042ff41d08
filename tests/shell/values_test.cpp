// Operations on values: implicit expansion, indexed assignment with growth,
// deletion and class rules, concatenation classes, ranges and conditions.
#include "shell/values/concat.hpp"
#include "shell/values/indexing.hpp"
#include "shell/values/operators.hpp"

#include "tests/support/expect_error.hpp"

#include <cmath>

using namespace orrery;
using namespace orrery::shell::values;
using shell::lang::Op;
using value::ClassId;
using value::Dims;
using value::ValueArray;

namespace {

ValueArray row(std::vector<double> values) {
    const std::size_t n = values.size();
    return ValueArray::doubles(Dims{1, n}, std::move(values));
}

std::vector<double> numbers(const ValueArray& v) {
    std::vector<double> out;
    for (std::size_t i = 0; i < v.numel(); ++i) out.push_back(v.realAt(i));
    return out;
}

IndexArg at(std::vector<double> positions) { return {false, row(std::move(positions))}; }
const IndexArg all{true, ValueArray()};

}  // namespace

TEST(Operators, ExpandSingletonDimensions) {
    const ValueArray column = ValueArray::doubles(Dims{2, 1}, {1, 2});
    const ValueArray sum = binaryOperation(Op::Plus, column, row({10, 20, 30}));
    EXPECT_EQ(sum.dims(), (Dims{2, 3}));
    EXPECT_EQ(numbers(sum), (std::vector<double>{11, 12, 21, 22, 31, 32}));
    EXPECT_MSGID_TEXT(binaryOperation(Op::Plus, row({1, 2}), row({1, 2, 3})), "ORRERY:shell:sizeMismatch",
                      "The sizes 1x2 and 1x3 are not compatible for this operation.");
}

TEST(Operators, RefuseWhatTheyDoNotDefine) {
    EXPECT_MSGID(binaryOperation(Op::Plus, ValueArray::cell(Dims{1, 1}), row({1})), "ORRERY:shell:unsupportedOperation");
    EXPECT_MSGID(binaryOperation(Op::Power, row({1, 2}), row({2})), "ORRERY:shell:matrixOperation");
    EXPECT_MSGID(binaryOperation(Op::Divide, row({1}), row({1, 2})), "ORRERY:shell:matrixOperation");
    EXPECT_MSGID(binaryOperation(Op::Times, row({1, 2}), row({1, 2})), "ORRERY:shell:innerDimensions");
    const ValueArray int8 = ValueArray::numericScalar(ClassId::Int8, 1);
    const ValueArray int16 = ValueArray::numericScalar(ClassId::Int16, 1);
    EXPECT_MSGID(binaryOperation(Op::Plus, int8, int16), "ORRERY:shell:unsupportedOperation");
}

TEST(Ranges, CountSteps) {
    static const struct {
        double start, step, stop;
        std::size_t count;
    } cases[] = {{0, 0.1, 1, 11}, {1, 1, 0, 0}, {5, -1, 1, 5}, {0, 0, 1, 0}, {1, 0.3, 2, 4}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.stop);
        const ValueArray step = ValueArray::scalar(c.step);
        EXPECT_EQ(makeRange(ValueArray::scalar(c.start), &step, ValueArray::scalar(c.stop)).numel(), c.count);
    }
    EXPECT_MSGID(makeRange(ValueArray::scalar(0), nullptr, ValueArray::scalar(1e12)), "ORRERY:shell:arrayTooLarge");
}

TEST(Conditions, AreTrueWhenNonEmptyAndAllNonZero) {
    EXPECT_TRUE(isTrue(row({1, 2})));
    EXPECT_FALSE(isTrue(row({1, 0})));
    EXPECT_FALSE(isTrue(ValueArray()));
    EXPECT_MSGID(isTrue(ValueArray::scalar(NAN)), "ORRERY:value:notLogicalConvertible");
    EXPECT_MSGID(isTrue(ValueArray::string(u"yes")), "ORRERY:shell:conditionClass");
}

TEST(IndexedAssignment, GrowsVectorsAndMatrices) {
    EXPECT_EQ(assignIndexed(ValueArray(), {at({3})}, ValueArray::scalar(7)).dims(), (Dims{1, 3}));
    const ValueArray column = ValueArray::doubles(Dims{2, 1}, {1, 2});
    EXPECT_EQ(assignIndexed(column, {at({4})}, ValueArray::scalar(4)).dims(), (Dims{4, 1}));
    const ValueArray grown = assignIndexed(column, {at({1}), at({3})}, ValueArray::scalar(9));
    EXPECT_EQ(grown.dims(), (Dims{2, 3}));
    EXPECT_EQ(numbers(grown), (std::vector<double>{1, 2, 0, 0, 9, 0}));
    const ValueArray square = ValueArray::zeros(ClassId::Double, Dims{2, 2});
    EXPECT_MSGID(assignIndexed(square, {at({7})}, ValueArray::scalar(1)), "ORRERY:shell:ambiguousGrowth");
    EXPECT_MSGID_TEXT(assignIndexed(row({1, 2, 3}), {at({1, 2})}, row({1, 2, 3})), "ORRERY:shell:assignmentCount",
                      "Cannot assign 3 values to 2 places.");
}

TEST(IndexedAssignment, DeletesWithTheEmptyValue) {
    EXPECT_EQ(numbers(assignIndexed(row({1, 2, 3, 4}), {at({2, 4})}, ValueArray())), (std::vector<double>{1, 3}));
    const ValueArray matrix = ValueArray::doubles(Dims{2, 3}, {1, 2, 3, 4, 5, 6});
    const ValueArray fewerColumns = assignIndexed(matrix, {all, at({2})}, ValueArray());
    EXPECT_EQ(fewerColumns.dims(), (Dims{2, 2}));
    EXPECT_EQ(numbers(fewerColumns), (std::vector<double>{1, 2, 5, 6}));
    EXPECT_MSGID(assignIndexed(matrix, {at({1}), at({2})}, ValueArray()), "ORRERY:shell:deletionShape");
}

TEST(IndexedAssignment, FollowsTheClassRules) {
    static const struct {
        const char* what;
        ValueArray array;
        ValueArray value;
        ClassId result;
    } cases[] = {
        {"empty takes the value's class", ValueArray(), ValueArray::chars(u"a"), ClassId::Char},
        {"text stays text", ValueArray::chars(u"ab"), ValueArray::scalar(66), ClassId::Char},
        {"logical takes a number's class", ValueArray::logicalScalar(true), ValueArray::scalar(2), ClassId::Double},
        {"an integer value makes it integer", row({1}), ValueArray::numericScalar(ClassId::UInt8, 3), ClassId::UInt8},
        {"strings take text", ValueArray::string(u"a"), ValueArray::chars(u"b"), ClassId::String},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(assignIndexed(c.array, {at({2})}, c.value).classId(), c.result);
    }
    EXPECT_MSGID(assignIndexed(ValueArray::cell(Dims{1, 1}), {at({2})}, ValueArray::scalar(1)),
                 "ORRERY:shell:assignmentClass");
}

TEST(Concatenation, ChoosesOneClass) {
    static const struct {
        const char* what;
        ValueRows rows;
        ClassId result;
        Dims dims;
    } cases[] = {
        {"numbers", {{row({1}), row({2, 3})}}, ClassId::Double, Dims{1, 3}},
        {"char wins over numbers", {{ValueArray::chars(u"a"), ValueArray::scalar(66)}}, ClassId::Char, Dims{1, 2}},
        {"logicals stay logical", {{ValueArray::logicalScalar(true), ValueArray::logicalScalar(false)}},
         ClassId::Logical, Dims{1, 2}},
        {"string wins over char", {{ValueArray::string(u"a"), ValueArray::chars(u"bc")}}, ClassId::String, Dims{1, 2}},
        {"cells wrap other values", {{ValueArray::cell(Dims{1, 1}), ValueArray::scalar(1)}}, ClassId::Cell, Dims{1, 2}},
        {"empties take no room", {{ValueArray(), row({1, 2})}, {row({3, 4})}}, ClassId::Double, Dims{2, 2}},
        {"all empty", {{}, {}}, ClassId::Double, Dims{0, 0}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const ValueArray joined = concatenate(c.rows);
        EXPECT_EQ(joined.classId(), c.result);
        EXPECT_EQ(joined.dims(), c.dims);
    }
    EXPECT_MSGID(concatenate({{ValueArray::structArray(Dims{1, 1}), ValueArray::scalar(1)}}),
                 "ORRERY:shell:concatenationClass");
    EXPECT_MSGID(concatenate({{row({1, 2})}, {row({1})}}), "ORRERY:shell:concatenationSize");
}

TEST(Concatenation, CellLiteralsNestCells) {
    const ValueArray inner = ValueArray::cell(Dims{1, 2});
    const ValueArray outer = cellLiteral({{inner, ValueArray::scalar(1)}});
    EXPECT_EQ(outer.dims(), (Dims{1, 2}));
    EXPECT_EQ(outer.cellAt(0).dims(), (Dims{1, 2}));
}
