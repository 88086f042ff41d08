// Tests of the warning record: conversions to and from interpreter values, copies,
// the time stamp and the comparison.
#include <orrery/interp/dates.hpp>
#include <orrery/lang/warning.hpp>

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using orrery::lang::PrintfArgument;
using orrery::lang::StackFrame;
using orrery::lang::diagnostic::Warning;
using orrery::testing::row;
using orrery::value::ClassId;
using orrery::value::Dims;
using orrery::value::ValueArray;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Warning record(double time, std::string identifier, std::vector<PrintfArgument> arguments = {},
               std::vector<StackFrame> stack = {}, bool wasDisabled = false) {
    Warning w;
    w.setTime(time);
    w.setIdentifier(std::move(identifier));
    w.setMessage(u"message");
    w.setFormat(u"format %d");
    w.setArguments(std::move(arguments));
    w.setStack(std::move(stack));
    w.setWasDisabled(wasDisabled);
    return w;
}

ValueArray cellOf(std::vector<ValueArray> elements, Dims dims) {
    auto cell = ValueArray::cell(std::move(dims));
    for (std::size_t i = 0; i < elements.size(); ++i) cell.setCellAt(i, elements[i]);
    return cell;
}

}  // namespace

TEST(Warning, ArgumentsRoundTripThroughACellOfTheirOwnClasses) {
    const struct {
        PrintfArgument argument;
        ClassId cellClass;
    } cases[] = {
        {std::numeric_limits<std::int32_t>::min(), ClassId::Int32},
        {std::numeric_limits<std::uint32_t>::max(), ClassId::UInt32},
        {std::numeric_limits<std::int64_t>::min(), ClassId::Int64},
        {std::numeric_limits<std::uint64_t>::max(), ClassId::UInt64},
        {0.1, ClassId::Double},
        {kNaN, ClassId::Double},
        {std::u16string(u"x"), ClassId::Char},
        {std::u16string(u"two words"), ClassId::Char},
        {std::u16string(), ClassId::Char},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.cellClass));
        Warning w = record(1, "a:b", {c.argument, std::int32_t{7}});
        const Warning before = w;
        const auto cell = w.getArgumentsAsValueArray();
        ASSERT_EQ(cell->dims(), (Dims{1, 2}));
        EXPECT_EQ(cell->cellAt(0).classId(), c.cellClass);
        w.setArguments(cell.get());
        EXPECT_EQ(w, before);
    }
}

TEST(Warning, StacksRoundTripThroughTheStackStructure) {
    const std::vector<std::vector<StackFrame>> stacks = {
        {},
        {{u"f.orr", u"f", 0}},
        {{u"/a/inner.orr", u"inner", 12}, {u"", u"", std::numeric_limits<std::uint32_t>::max()}},
    };
    for (const auto& stack : stacks) {
        SCOPED_TRACE(stack.size());
        Warning w = record(1, "a:b", {}, stack);
        const auto value = w.getStackAsValueArray();
        EXPECT_EQ(value->dims(), (Dims{stack.size(), 1}));
        EXPECT_EQ(value->fieldNames(), (std::vector<std::string>{"file", "name", "line"}));
        w.setStack(std::vector<StackFrame>{});
        w.setStack(value.get());
        EXPECT_EQ(w.getStack(), stack);
    }
}

// The shapes a script can write are refused end to end in the warning_log_objects
// script; these are the values the class system or a script cannot pass.
TEST(Warning, SettersRefuseValuesOfAnotherKindAndKeepTheRecord) {
    const Warning original = record(1, "a:b", {std::int32_t{1}}, {{u"f", u"f", 1}});
    const ValueArray notCell = row({1});
    const ValueArray missing = cellOf({ValueArray::missingString()}, Dims{1, 1});
    const ValueArray notStruct = ValueArray::cell(Dims{1, 1});
    Warning w = original;
    EXPECT_MSGID(w.setArguments(&notCell), "ORRERY:warning:badArguments");
    EXPECT_MSGID(w.setArguments(&missing), "ORRERY:warning:badArgument");
    EXPECT_MSGID(w.setStack(&notStruct), "ORRERY:warning:badStack");
    EXPECT_EQ(w, original);
}

TEST(Warning, TimestampTakesTheCurrentLocalTime) {
    Warning w;
    const double before = orrery::interp::nowSerial();
    w.timestamp();
    const double after = orrery::interp::nowSerial();
    EXPECT_GE(w.getTime(), before);
    EXPECT_LE(w.getTime(), after);
}

TEST(Warning, ComparisonIsAStrictWeakOrderingConsistentWithEquality) {
    const std::vector<Warning> records = {
        record(2, "a:b"),
        record(2, "a:b"),
        record(1, "z:z"),
        record(kNaN, "a:b"),
        record(kNaN, "a:b"),
        record(2, "a:b", {std::int32_t{1}}),
        record(2, "a:b", {1.0}),
        record(2, "a:b", {}, {{u"f", u"f", 1}}),
        record(2, "a:b", {}, {}, true),
        record(-0.0, "a:c"),
        record(0.0, "a:c"),
    };
    const auto equivalent = [](const Warning& a, const Warning& b) { return !(a < b) && !(b < a); };
    for (const auto& a : records) {
        EXPECT_FALSE(a < a);
        for (const auto& b : records) {
            EXPECT_NE(a == b, a != b);
            EXPECT_EQ(equivalent(a, b), a == b);
            EXPECT_FALSE(a < b && b < a);
            for (const auto& c : records) {
                EXPECT_FALSE(a < b && b < c && !(a < c));
                EXPECT_FALSE(equivalent(a, b) && equivalent(b, c) && !equivalent(a, c));
            }
        }
    }
    EXPECT_TRUE(records[2] < records[0]) << "time of issue comes first";
    EXPECT_EQ(records[3], records[4]) << "a record equals its copy even with a NaN time";
}

TEST(Warning, EveryFieldTakesPartInTheComparison) {
    const Warning base = record(2, "a:b", {std::int32_t{1}}, {{u"f", u"f", 1}});
    std::vector<Warning> changed(7, base);
    changed[0].setIdentifier("a:c");
    changed[1].setMessage(u"other");
    changed[2].setFormat(u"other");
    changed[3].setArguments({std::int32_t{2}});
    changed[4].setStack({{u"f", u"f", 2}});
    changed[5].setTime(3);
    changed[6].setWasDisabled(true);
    for (std::size_t i = 0; i < changed.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_NE(base, changed[i]);
        EXPECT_TRUE(base < changed[i]);
    }
}
