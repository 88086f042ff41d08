// Tests of comparing Warning arrays (eq, ne, isequal) and sorting them, called
// through the class system's dispatch as the language calls them.
#include "tests/support/expect_error.hpp"
#include "warning_arrays.hpp"

using namespace warning_test;

namespace {

struct CompareCase {
    const char* name;
    ValueArray a;
    ValueArray b;
    Dims dims;             // of the answer
    std::vector<bool> eq;  // empty with dimagree
    bool dimagree = false;
};

}  // namespace

TEST(WarningCompare, EqComparesEqualSizesOrExpandsAScalarAndNeIsItsNegation) {
    const ValueArray matrix = warningsAt(Dims{2, 3}, {1, 2, 1, 3, 1, 4});
    const ValueArray one = warningsAt(Dims{1, 1}, {1});
    const CompareCase cases[] = {
        {"matrix with scalar", matrix, one, Dims{2, 3}, {true, false, true, false, true, false}},
        {"scalar with matrix", one, matrix, Dims{2, 3}, {true, false, true, false, true, false}},
        {"equal sizes",
         matrix,
         warningsAt(Dims{2, 3}, {1, 1, 1, 3, 3, 4}),
         Dims{2, 3},
         {true, false, true, true, false, true}},
        {"two empty arrays", warnings(Dims{0, 0}, {}), warnings(Dims{0, 0}, {}), Dims{0, 0}, {}},
        {"empty with scalar", warnings(Dims{0, 3}, {}), one, Dims{0, 3}, {}},
        {"transposed sizes", matrix, warningsAt(Dims{3, 2}, {1, 2, 1, 3, 1, 4}), Dims{}, {}, true},
        {"empty with row", warnings(Dims{1, 0}, {}), warningsAt(Dims{1, 2}, {1, 2}), Dims{}, {}, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        if (c.dimagree) {
            EXPECT_MSGID(callMethod("eq", 1, {c.a, c.b}), "ORRERY:warning:compare:dimagree");
            EXPECT_MSGID(callMethod("ne", 1, {c.a, c.b}), "ORRERY:warning:compare:dimagree");
            continue;
        }
        const ValueArray eq = callMethod("eq", 1, {c.a, c.b})[0];
        const ValueArray ne = callMethod("ne", 1, {c.a, c.b})[0];
        ASSERT_TRUE(eq.is(orrery::value::ClassId::Logical));
        ASSERT_TRUE(ne.is(orrery::value::ClassId::Logical));
        EXPECT_EQ(eq.dims(), c.dims);
        EXPECT_EQ(ne.dims(), c.dims);
        EXPECT_EQ(logicalsOf(eq), c.eq);
        std::vector<bool> negated;
        for (bool flag : c.eq) negated.push_back(!flag);
        EXPECT_EQ(logicalsOf(ne), negated);
    }
}

TEST(WarningCompare, IsEqualAnswersFalseForOtherSizesAndComparesEveryRecord) {
    const ValueArray row = warningsAt(Dims{1, 2}, {1, 2});
    struct Case {
        const char* name;
        ValueArray a;
        ValueArray b;
        bool equal;
    } const cases[] = {
        {"same records", row, warningsAt(Dims{1, 2}, {1, 2}), true},
        {"same records, other shape", row, warningsAt(Dims{2, 1}, {1, 2}), false},
        {"one record differs", row, warnings(Dims{1, 2}, {record(1), record(2, "demo:other")}), false},
        {"empty arrays of other sizes", warnings(Dims{0, 0}, {}), warnings(Dims{1, 0}, {}), false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const ValueArray answer = callMethod("isequal", 1, {c.a, c.b})[0];
        ASSERT_TRUE(answer.is(orrery::value::ClassId::Logical) && answer.isScalar());
        EXPECT_EQ(answer.logicalAt(0), c.equal);
    }
}

TEST(WarningCompare, InvalidElementsAreRefusedWithTheArrayClass) {
    const ValueArray holed = warnings(Dims{1, 2}, {record(1)});  // element 2 never set
    const ValueArray full = warningsAt(Dims{1, 2}, {1, 2});
    EXPECT_MSGID_TEXT(callMethod("eq", 1, {full, holed}), "ORRERY:warning:Invalid",
                      "An element of the orrery.internal.diagnostic.Warning array is not a valid object.");
    EXPECT_MSGID(callMethod("ne", 1, {holed, warningsAt(Dims{1, 1}, {1})}), "ORRERY:warning:Invalid");
    EXPECT_MSGID(callMethod("isequal", 1, {holed, full}), "ORRERY:warning:Invalid");
    EXPECT_MSGID(callMethod("sort", 2, {holed}), "ORRERY:warning:Invalid");
}

TEST(WarningSort, SortsEachColumnOrTheRowStablyWithPositionsFromOne) {
    struct Case {
        const char* name;
        Dims dims;
        std::vector<double> times;
        std::vector<double> sorted;
        std::vector<double> positions;
    } const cases[] = {
        {"row, equal records keep their order", Dims{1, 4}, {3, 1, 2, 1}, {1, 1, 2, 3}, {2, 4, 3, 1}},
        {"column", Dims{3, 1}, {2, 2, 1}, {1, 2, 2}, {3, 1, 2}},
        {"matrix, positions restart per column",
         Dims{3, 2},
         {3, 1, 2, 5, 6, 4},
         {1, 2, 3, 4, 5, 6},
         {2, 3, 1, 3, 1, 2}},
        {"all equal", Dims{1, 3}, {7, 7, 7}, {7, 7, 7}, {1, 2, 3}},
        {"scalar", Dims{1, 1}, {7}, {7}, {1}},
        {"0-by-0", Dims{0, 0}, {}, {}, {}},
        {"1-by-0", Dims{1, 0}, {}, {}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const ValueArray input = warningsAt(c.dims, c.times);
        const auto outputs = callMethod("sort", 2, {input});
        EXPECT_EQ(outputs[0].className(), "orrery.internal.diagnostic.Warning");
        EXPECT_EQ(outputs[0].dims(), c.dims);
        EXPECT_EQ(timesOf(outputs[0]), c.sorted);
        ASSERT_TRUE(outputs[1].is(orrery::value::ClassId::Double));
        EXPECT_EQ(outputs[1].dims(), c.dims);
        const auto positions = outputs[1].data<double>();
        EXPECT_EQ(std::vector<double>(positions.begin(), positions.end()), c.positions);
        EXPECT_EQ(timesOf(input), c.times) << "the input is left as it was";
    }
}

TEST(WarningSort, RefusesMoreThanTwoDimensions) {
    EXPECT_MSGID(callMethod("sort", 1, {warningsAt(Dims{1, 1, 2}, {2, 1})}), "ORRERY:warning:sort:NDSort");
}
