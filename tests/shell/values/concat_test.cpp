// Concatenation: the class of every pair of classes joined side by side, sizes
// that fit and do not, and the empty values that take no room.
#include "shell/values/concat.hpp"

#include "tests/shell/values/value_notation.hpp"
#include "tests/support/expect_error.hpp"

#include <array>

using namespace orrery::testing;
using orrery::shell::values::concatenate;
using orrery::value::ClassId;
using orrery::value::Dims;
using orrery::value::ValueArray;

TEST(Concatenation, EveryPairOfClassesJoinsIntoOneOrClashes) {
    ValueArray structure = ValueArray::structArray(Dims{1, 1}, {"f"});
    const std::array<ValueArray, 8> samples = {
        ValueArray::scalar(1),
        ValueArray::numericScalar(ClassId::Single, 2),
        ValueArray::numericScalar(ClassId::Int8, 3),
        ValueArray::logicalScalar(true),
        ValueArray::chars(u"a"),
        ValueArray::string(u"s"),
        ValueArray::cell(Dims{1, 1}),
        structure,
    };
    // joined[left][right]: the class of [left, right], or "!" for a class clash
    const char* const joined[8][8] = {
        // double  single   int8    logical  char    string    cell    struct
        {"double", "single", "int8", "double", "char", "string", "cell", "!"},    // double
        {"single", "single", "int8", "single", "single", "string", "cell", "!"},  // single
        {"int8", "int8", "int8", "int8", "int8", "string", "cell", "!"},          // int8
        {"double", "single", "int8", "logical", "char", "string", "cell", "!"},   // logical
        {"char", "single", "int8", "char", "char", "string", "cell", "!"},        // char
        {"string", "string", "string", "string", "string", "string", "!", "!"},   // string
        {"cell", "cell", "cell", "cell", "cell", "!", "cell", "cell"},            // cell
        {"!", "!", "!", "!", "!", "!", "cell", "struct"},                         // struct
    };
    for (std::size_t l = 0; l < samples.size(); ++l) {
        for (std::size_t r = 0; r < samples.size(); ++r) {
            SCOPED_TRACE(describe(samples[l]) + " , " + describe(samples[r]));
            const std::string expected = joined[l][r];
            if (expected == "!") {
                EXPECT_MSGID(concatenate({{samples[l], samples[r]}}), "ORRERY:shell:concatenationClass");
                continue;
            }
            const ValueArray side = concatenate({{samples[l], samples[r]}});
            EXPECT_EQ(side.className(), expected);
            EXPECT_EQ(side.dims(), (Dims{1, 2}));
            const ValueArray onTop = concatenate({{samples[l]}, {samples[r]}});
            EXPECT_EQ(onTop.className(), expected);
            EXPECT_EQ(onTop.dims(), (Dims{2, 1}));
        }
    }
}

TEST(Concatenation, SizesJoinAlongRowsAndColumns) {
    struct Case {
        const char* what;
        orrery::shell::values::ValueRows rows;
        const char* expected;  // describe() of the result, or the error's identifier
    };
    const Case cases[] = {
        {"side by side", {{row({1, 2}), ValueArray::scalar(3)}}, "double 1x3: 1 2 3"},
        {"on top, column-major", {{row({1, 2})}, {row({3, 4})}}, "double 2x2: 1 3 2 4"},
        {"blocks", {{column({1, 2}), column({3, 4})}, {row({5, 6})}}, "double 3x2: 1 2 5 3 4 6"},
        {"[] takes no room", {{ValueArray(), row({1}), ValueArray()}}, "double 1x1: 1"},
        {"0-by-3 rows add up",
         {{ValueArray::zeros(ClassId::Double, Dims{0, 3}), ValueArray::zeros(ClassId::Double, Dims{0, 3})}},
         "double 0x6:"},
        {"nothing at all", {}, "double 0x0:"},
        {"char rows on top", {{ValueArray::chars(u"ab")}, {ValueArray::chars(u"cd")}}, "char 2x2: 'acbd'"},
        {"number into text", {{ValueArray::chars(u"a"), ValueArray::scalar(98)}}, "char 1x2: 'ab'"},
        {"rows differ", {{row({1, 2})}, {row({3})}}, "ORRERY:shell:concatenationSize"},
        {"columns differ", {{column({1, 2}), ValueArray::scalar(3)}}, "ORRERY:shell:concatenationSize"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        if (std::string_view(c.expected).starts_with("ORRERY:"))
            EXPECT_MSGID(concatenate(c.rows), c.expected);
        else
            EXPECT_EQ(describe(concatenate(c.rows)), c.expected);
    }
}
