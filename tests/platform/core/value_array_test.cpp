// Tests of ValueArray: sizes, classes, copy-on-write, text, structs and cells (object
// elements are tested with the class system).
#include "tests/support/expect_error.hpp"

#include <orrery/value/value_array.hpp>

#include <cmath>

using namespace orrery::value;

TEST(Dims, DropsTrailingSingletonsAndKeepsTwo) {
    EXPECT_EQ((Dims{3}), (Dims{3, 1}));
    EXPECT_EQ((Dims{2, 3, 1, 1}), (Dims{2, 3}));
    EXPECT_EQ((Dims{2, 3, 4}).numel(), 24u);
    EXPECT_EQ((Dims{2, 3, 4}).text(), "2x3x4");
    EXPECT_EQ(Dims().text(), "0x0");
}

TEST(ValueArray, IntegerClassesRoundAndSaturate) {
    auto v = ValueArray::zeros(ClassId::Int8, Dims{1, 1});
    const std::pair<double, double> cases[] = {{2.5, 3}, {-2.5, -3}, {300, 127}, {-300, -128}, {std::nan(""), 0}};
    for (const auto& [given, stored] : cases) {
        SCOPED_TRACE(given);
        v.setRealAt(0, given);
        EXPECT_EQ(v.realAt(0), stored);
    }
    EXPECT_MSGID(v.data<double>(), "ORRERY:value:wrongClass");
}

TEST(ValueArray, CopiesOfArraysAndCellsShareUntilWritten) {
    auto a = ValueArray::doubles(Dims{1, 3}, {1, 2, 3});
    auto b = a.sharedCopy();
    b.setRealAt(1, 20);
    EXPECT_EQ(a.realAt(1), 2);
    auto c = ValueArray::cell(Dims{1, 2});
    c.setCellAt(1, ValueArray::chars(u"hi"));
    const auto copy = c;
    c.setCellAt(0, ValueArray::scalar(1));
    EXPECT_EQ(copy.cellAt(1).text(), u"hi");
    EXPECT_TRUE(copy.cellAt(0).isEmpty());
}

TEST(Dims, SizesOfManyDimensionsLeaveTheInlineRoom) {
    const std::vector<std::size_t> sizes{2, 1, 3, 1, 2, 1, 1};
    const Dims dims(sizes);
    EXPECT_EQ(dims.text(), "2x1x3x1x2");
    EXPECT_EQ(dims.numel(), 12u);
    Dims copy = dims;
    copy = Dims{4, 5};
    EXPECT_EQ(dims.count(), 5u);
    EXPECT_EQ(copy, (Dims{4, 5, 1}));
}

TEST(ValueArray, ScalarsAndEmptiesHaveNoDataBlockAndStayValues) {
    for (const ClassId id : {ClassId::Double, ClassId::Single, ClassId::Int8, ClassId::UInt16, ClassId::Int64,
                             ClassId::UInt64, ClassId::Logical}) {
        SCOPED_TRACE(std::string(className(id)));
        auto v = ValueArray::numericScalar(id, 1);
        EXPECT_EQ(v.dataIdentity(), nullptr);
        auto copy = v;
        copy.setRealAt(0, 0);
        EXPECT_EQ(v.realAt(0), 1) << "a copy changes alone";
        v.resize(Dims{1, 3});  // the element moves into a data block
        EXPECT_NE(v.dataIdentity(), nullptr);
        EXPECT_EQ(v.realAt(0), 1);
        EXPECT_EQ(v.realAt(2), 0);
        EXPECT_EQ(ValueArray::zeros(id, Dims{0, 3}).dataIdentity(), nullptr);
    }
    auto x = ValueArray::scalar(2.5);
    x.mutableData<double>()[0] = 7;
    EXPECT_EQ(x.data<double>().size(), 1u);
    EXPECT_EQ(x.realAt(0), 7);
    EXPECT_MSGID(x.data<float>(), "ORRERY:value:wrongClass");
    EXPECT_MSGID(x.realAt(1), "ORRERY:value:indexOutOfRange");
    EXPECT_TRUE(ValueArray::logicals(Dims{1, 1}, {true}).logicalAt(0));
    EXPECT_EQ(ValueArray::doubles(Dims{1, 0}, {}).dims(), (Dims{1, 0}));
    const auto empty = ValueArray::chars(u"");
    EXPECT_TRUE(empty.isTextScalarTolerant());
    EXPECT_EQ(empty.textView(), u"");
    EXPECT_EQ(ValueArray().dataIdentity(), nullptr);
}

TEST(ValueArray, RejectsOutOfRangeIndexAndWrongClass) {
    auto v = ValueArray::doubles(Dims{2, 2}, {1, 2, 3, 4});
    EXPECT_MSGID(v.realAt(4), "ORRERY:value:indexOutOfRange");
    EXPECT_MSGID(v.setRealAt(99, 1), "ORRERY:value:indexOutOfRange");
    EXPECT_MSGID(v.cellAt(0), "ORRERY:value:wrongClass");
    EXPECT_MSGID(v.objectAt(0), "ORRERY:value:wrongClass");
    EXPECT_MSGID(ValueArray::doubles(Dims{2, 2}, {1}), "ORRERY:value:badDimensions");
    EXPECT_MSGID(v.reshape(Dims{3, 1}), "ORRERY:value:badDimensions");
}

TEST(ValueArray, TextScalarTests) {
    struct Case {
        ValueArray value;
        bool strict;
        bool tolerant;
    };
    const Case cases[] = {
        {ValueArray::chars(u"abc"), true, true}, {ValueArray::charArray(Dims{1, 0}, u""), true, true},
        {ValueArray::chars(u""), false, true},   {ValueArray::charArray(Dims{2, 1}, u"ab"), false, false},
        {ValueArray::string(u""), true, true},   {ValueArray::missingString(), false, false},
        {ValueArray::scalar(1), false, false},   {ValueArray::strings(Dims{1, 2}, {u"a", u"b"}), false, false},
    };
    for (const auto& [value, strict, tolerant] : cases) {
        EXPECT_EQ(value.isTextScalar(), strict) << value.className() << " " << value.dims().text();
        EXPECT_EQ(value.isTextScalarTolerant(), tolerant) << value.className() << " " << value.dims().text();
    }
    EXPECT_EQ(ValueArray::string(u"s").text(), u"s");
    EXPECT_MSGID(ValueArray::missingString().text(), "ORRERY:value:wrongClass");
}

TEST(ValueArray, ConvertsScalarsToLogical) {
    EXPECT_TRUE(ValueArray::scalar(2).toLogicalScalar().logicalAt(0));
    EXPECT_FALSE(ValueArray::numericScalar(ClassId::UInt8, 0).toLogicalScalar().logicalAt(0));
    EXPECT_MSGID(ValueArray::scalar(std::nan("")).toLogicalScalar(), "ORRERY:value:notLogicalConvertible");
    EXPECT_MSGID(ValueArray::cell(Dims{1, 1}).toLogicalScalar(), "ORRERY:value:notLogicalConvertible");
    EXPECT_MSGID(ValueArray::doubles(Dims{1, 2}, {1, 1}).toLogicalScalar(), "ORRERY:value:notScalar");
}

TEST(ValueArray, StructFieldsAreOrderedAndMayBeUnset) {
    auto s = ValueArray::structArray(Dims{2, 1}, {"b", "a"});
    s.setField(1, "a", ValueArray::scalar(5));
    s.setField(0, "c", ValueArray::chars(u"x"));
    EXPECT_EQ(s.fieldNames(), (std::vector<std::string>{"b", "a", "c"}));
    EXPECT_EQ(s.field(0, "a"), nullptr);
    EXPECT_EQ(s.field(1, "a")->realAt(0), 5);
    EXPECT_EQ(s.field(1, "missing"), nullptr);
    EXPECT_MSGID(s.field(2, "a"), "ORRERY:value:indexOutOfRange");
    EXPECT_EQ(ValueArray::stackStructure(0).fieldNames(), (std::vector<std::string>{"file", "name", "line"}));
}
