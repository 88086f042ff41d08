// Reading, assigning and deleting by index: result sizes, growth, the class
// rules of assignment, in-place change of unshared data, and the errors.
#include "shell/values/indexing.hpp"

#include "tests/shell/values/value_notation.hpp"
#include "tests/support/expect_error.hpp"

using namespace orrery::testing;
using orrery::shell::values::assignIndexed;
using orrery::shell::values::IndexArg;
using orrery::shell::values::indexValue;
using orrery::value::ClassId;
using orrery::value::Dims;
using orrery::value::ValueArray;

namespace {

using Args = orrery::shell::values::IndexArgs;

// 2-by-3, column-major 1..6: [1 3 5; 2 4 6].
ValueArray matrix() { return doubles(Dims{2, 3}, {1, 2, 3, 4, 5, 6}); }

struct Case {
    const char* what;
    ValueArray array;
    Args args;
    ValueArray value;      // unused by reading
    const char* expected;  // describe() of the result, or the error's identifier
};

bool isIdentifier(const char* expected) { return std::string_view(expected).starts_with("ORRERY:"); }

}  // namespace

TEST(Indexing, ReadingSelectsElementsAndShapesTheResult) {
    const Case cases[] = {
        {"one element", row({10, 20, 30}), {at({2})}, {}, "double 1x1: 20"},
        {"a column of a row follows the row", row({10, 20, 30}), {{false, column({3, 1})}}, {}, "double 1x2: 30 10"},
        {"colon makes a column", row({10, 20}), {all()}, {}, "double 2x1: 10 20"},
        {"mask of a row", row({10, 20, 30}), {mask({1, 0, 1})}, {}, "double 1x2: 10 30"},
        {"mask of a matrix is a column", matrix(), {mask({0, 1, 1})}, {}, "double 2x1: 2 3"},
        {"linear index of a matrix keeps its shape",
         matrix(),
         {{false, doubles(Dims{2, 1}, {6, 1})}},
         {},
         "double 2x1: 6 1"},
        {"row of a matrix", matrix(), {at({2}), all()}, {}, "double 1x3: 2 4 6"},
        {"column of a matrix", matrix(), {all(), at({3})}, {}, "double 2x1: 5 6"},
        {"trailing index spans the rest", matrix(), {at({1}), at({5})}, {}, "ORRERY:shell:indexBeyondDimension"},
        {"char keeps its class", ValueArray::chars(u"abc"), {at({3, 1})}, {}, "char 1x2: 'ca'"},
        {"past the end", row({1, 2}), {at({3})}, {}, "ORRERY:value:indexOutOfRange"},
        {"beyond a dimension", matrix(), {at({3}), at({1})}, {}, "ORRERY:shell:indexBeyondDimension"},
        {"zero", row({1, 2}), {at({0})}, {}, "ORRERY:shell:badIndex"},
        {"fraction", row({1, 2}), {at({1.5})}, {}, "ORRERY:shell:badIndex"},
        {"cell as index", row({1, 2}), {{false, ValueArray::cell(Dims{1, 1})}}, {}, "ORRERY:shell:badIndexClass"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        if (isIdentifier(c.expected))
            EXPECT_MSGID(indexValue(c.array, c.args), c.expected);
        else
            EXPECT_EQ(describe(indexValue(c.array, c.args)), c.expected);
    }
}

TEST(Indexing, AssignmentGrowsAndFollowsTheClassRules) {
    const Case cases[] = {
        {"one element", row({1, 2, 3}), {at({2})}, ValueArray::scalar(9), "double 1x3: 1 9 3"},
        {"scalar into many", row({1, 2, 3}), {at({1, 3})}, ValueArray::scalar(0), "double 1x3: 0 2 0"},
        {"element per place", row({1, 2, 3}), {mask({1, 0, 1})}, row({7, 8}), "double 1x3: 7 2 8"},
        {"colon fills", row({1, 2}), {all()}, ValueArray::scalar(5), "double 1x2: 5 5"},
        {"a row grows along", row({1, 2}), {at({4})}, ValueArray::scalar(7), "double 1x4: 1 2 0 7"},
        {"a column grows down", column({1, 2}), {at({4})}, ValueArray::scalar(7), "double 4x1: 1 2 0 7"},
        {"empty grows into a row", ValueArray(), {at({2})}, ValueArray::scalar(1), "double 1x2: 0 1"},
        {"a matrix grows by rows",
         doubles(Dims{2, 2}, {1, 2, 3, 4}),
         {at({3}), at({1})},
         ValueArray::scalar(5),
         "double 3x2: 1 2 5 3 4 0"},
        {"a matrix grows by columns",
         doubles(Dims{2, 2}, {1, 2, 3, 4}),
         {at({1}), at({3})},
         ValueArray::scalar(9),
         "double 2x3: 1 2 3 4 9 0"},
        {"colon over empty takes the value's length",
         ValueArray(),
         {all(), at({1})},
         column({1, 2}),
         "double 2x1: 1 2"},
        {"empty takes the value's class", ValueArray(), {at({1})}, ValueArray::chars(u"x"), "char 1x1: 'x'"},
        {"an integer value makes the array integer",
         row({1.4, 2}),
         {at({2})},
         ValueArray::numericScalar(ClassId::Int8, 100),
         "int8 1x2: 1 100"},
        {"a number makes logical double",
         numbers(ClassId::Logical, Dims{1, 2}, {1, 0}),
         {at({1})},
         ValueArray::scalar(2),
         "double 1x2: 2 0"},
        {"a number into chars converts", ValueArray::chars(u"ab"), {at({2})}, ValueArray::scalar(99), "char 1x2: 'ac'"},
        {"a number into strings becomes text",
         ValueArray::string(u"a"),
         {at({2})},
         ValueArray::scalar(5),
         "string 1x2: \"a\" \"5\""},
        {"cells take cells",
         ValueArray::cell(Dims{1, 1}),
         {at({2})},
         ValueArray::cell(Dims{1, 1}),
         "cell 1x2: {double 0x0:} {double 0x0:}"},
        {"a number into a cell",
         ValueArray::cell(Dims{1, 1}),
         {at({1})},
         ValueArray::scalar(1),
         "ORRERY:shell:assignmentClass"},
        {"count mismatch", row({1, 2, 3}), {at({1, 2})}, row({1, 2, 3}), "ORRERY:shell:assignmentCount"},
        {"a matrix cannot grow linearly", matrix(), {at({7})}, ValueArray::scalar(1), "ORRERY:shell:ambiguousGrowth"},
        {"bad index", row({1}), {at({-1})}, ValueArray::scalar(1), "ORRERY:shell:badIndex"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ValueArray a = c.array;
        if (isIdentifier(c.expected)) {
            EXPECT_MSGID(assignIndexed(a, c.args, c.value), c.expected);
            EXPECT_EQ(describe(a), describe(c.array)) << "a refused assignment changes nothing";
        } else {
            assignIndexed(a, c.args, c.value);
            EXPECT_EQ(describe(a), c.expected);
        }
    }
}

TEST(Indexing, AssigningTheEmptyDoubleDeletes) {
    const Case cases[] = {
        {"from a row", row({1, 2, 3, 4}), {at({2, 4})}, {}, "double 1x2: 1 3"},
        {"from a column", column({1, 2, 3}), {at({1})}, {}, "double 2x1: 2 3"},
        {"linearly from a matrix gives a row", matrix(), {at({1})}, {}, "double 1x5: 2 3 4 5 6"},
        {"everything", row({1, 2}), {all()}, {}, "double 0x0:"},
        {"a column of a matrix", matrix(), {all(), at({2})}, {}, "double 2x2: 1 2 5 6"},
        {"a row of a matrix", matrix(), {at({1}), all()}, {}, "double 1x3: 2 4 6"},
        {"strings keep their class", ValueArray::strings(Dims{1, 2}, {u"a", u"b"}), {at({1})}, {}, "string 1x1: \"b\""},
        {"not a whole slice", matrix(), {at({1}), at({2})}, {}, "ORRERY:shell:deletionShape"},
        {"past the end", row({1, 2}), {at({3})}, {}, "ORRERY:value:indexOutOfRange"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ValueArray a = c.array;
        if (isIdentifier(c.expected)) {
            EXPECT_MSGID(assignIndexed(a, c.args, ValueArray()), c.expected);
        } else {
            assignIndexed(a, c.args, ValueArray());
            EXPECT_EQ(describe(a), c.expected);
        }
    }
}

TEST(Indexing, AssignmentChangesUnsharedDataInPlaceAndLeavesCopiesAlone) {
    ValueArray a = row({1, 2, 3});
    const void* before = a.dataIdentity();
    assignIndexed(a, {at({2})}, ValueArray::scalar(9));
    EXPECT_EQ(a.dataIdentity(), before);

    const ValueArray copy = a;
    assignIndexed(a, {at({1})}, ValueArray::scalar(7));
    EXPECT_EQ(describe(copy), "double 1x3: 1 9 3");
    EXPECT_EQ(describe(a), "double 1x3: 7 9 3");

    // growth one element at a time keeps earlier elements and reuses storage
    ValueArray grown;
    for (int k = 1; k <= 100; ++k) assignIndexed(grown, {at({static_cast<double>(k)})}, ValueArray::scalar(k));
    EXPECT_EQ(grown.dims(), (Dims{1, 100}));
    EXPECT_EQ(grown.realAt(0), 1);
    EXPECT_EQ(grown.realAt(99), 100);
}
