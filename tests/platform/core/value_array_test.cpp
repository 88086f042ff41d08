// Tests of ValueArray: sizes, classes, copy-on-write, text, structs, cells, objects.
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/value/value_array.hpp>

#include <cmath>

using namespace orrery::value;

TEST(Dims, DropsTrailingSingletonsAndKeepsTwo) {
    EXPECT_EQ((Dims{3}), (Dims{3, 1}));
    EXPECT_EQ((Dims{2, 3, 1, 1}), (Dims{2, 3}));
    EXPECT_EQ((Dims{2, 3, 4}).count(), 3u);
    EXPECT_EQ((Dims{2, 3, 4}).numel(), 24u);
    EXPECT_EQ((Dims{0, 5}).numel(), 0u);
    EXPECT_EQ((Dims{2, 3, 4}).text(), "2x3x4");
    EXPECT_EQ(Dims().text(), "0x0");
}

TEST(ValueArray, DefaultIsAnEmptyDouble) {
    const ValueArray v;
    EXPECT_TRUE(v.is(ClassId::Double));
    EXPECT_TRUE(v.isEmpty());
    EXPECT_EQ(v.className(), "double");
}

TEST(ValueArray, ClassNamesOfEveryClass) {
    const std::pair<ClassId, const char*> cases[] = {
        {ClassId::Double, "double"}, {ClassId::Single, "single"}, {ClassId::Int8, "int8"},
        {ClassId::UInt64, "uint64"}, {ClassId::Logical, "logical"}, {ClassId::Char, "char"},
        {ClassId::String, "string"}, {ClassId::Cell, "cell"}, {ClassId::Struct, "struct"}};
    for (const auto& [id, name] : cases) EXPECT_EQ(ValueArray::zeros(id, Dims{1, 1}).className(), name);
}

TEST(ValueArray, IntegerClassesRoundAndSaturate) {
    auto v = ValueArray::zeros(ClassId::Int8, Dims{1, 4});
    v.setRealAt(0, 2.5);
    v.setRealAt(1, 300);
    v.setRealAt(2, -300);
    v.setRealAt(3, std::nan(""));
    EXPECT_EQ(v.realAt(0), 3);
    EXPECT_EQ(v.realAt(1), 127);
    EXPECT_EQ(v.realAt(2), -128);
    EXPECT_EQ(v.realAt(3), 0);
    EXPECT_EQ(v.data<std::int8_t>().size(), 4u);
    EXPECT_MSGID(v.data<double>(), "ORRERY:value:wrongClass");
}

TEST(ValueArray, CopiesShareUntilWritten) {
    auto a = ValueArray::doubles(Dims{1, 3}, {1, 2, 3});
    auto b = a.sharedCopy();
    EXPECT_TRUE(a.sharesDataWith(b));
    b.setRealAt(1, 20);
    EXPECT_FALSE(a.sharesDataWith(b));
    EXPECT_EQ(a.realAt(1), 2);
    EXPECT_EQ(b.realAt(1), 20);
}

TEST(ValueArray, RejectsOutOfRangeIndexAndWrongClass) {
    auto v = ValueArray::doubles(Dims{2, 2}, {1, 2, 3, 4});
    EXPECT_MSGID(v.realAt(4), "ORRERY:value:indexOutOfRange");
    EXPECT_MSGID(v.setRealAt(99, 1), "ORRERY:value:indexOutOfRange");
    EXPECT_MSGID(v.cellAt(0), "ORRERY:value:wrongClass");
    EXPECT_MSGID(v.chars(), "ORRERY:value:wrongClass");
    EXPECT_MSGID(v.fieldNames(), "ORRERY:value:wrongClass");
    EXPECT_MSGID(v.logicalAt(0), "ORRERY:value:wrongClass");
    EXPECT_MSGID(v.objectAt(0), "ORRERY:value:wrongClass");
    EXPECT_MSGID(ValueArray::doubles(Dims{2, 2}, {1}), "ORRERY:value:badDimensions");
    EXPECT_MSGID(v.reshape(Dims{3, 1}), "ORRERY:value:badDimensions");
}

TEST(ValueArray, TextScalarTests) {
    struct Case { ValueArray value; bool strict; bool tolerant; };
    const Case cases[] = {
        {ValueArray::chars(u"abc"), true, true},
        {ValueArray::charArray(Dims{1, 0}, u""), true, true},
        {ValueArray::chars(u""), false, true},  // 0-by-0
        {ValueArray::charArray(Dims{2, 1}, u"ab"), false, false},
        {ValueArray::string(u""), true, true},
        {ValueArray::missingString(), false, false},
        {ValueArray::strings(Dims{1, 2}, {u"a", u"b"}), false, false},
        {ValueArray::scalar(1), false, false},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(cases[i].value.isTextScalar(), cases[i].strict);
        EXPECT_EQ(cases[i].value.isTextScalarTolerant(), cases[i].tolerant);
    }
    EXPECT_EQ(ValueArray::string(u"s").text(), u"s");
    EXPECT_EQ(ValueArray::chars(u"").text(), u"");
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
}

TEST(ValueArray, StackStructureHasFileNameLine) {
    const auto stack = ValueArray::stackStructure(0);
    EXPECT_EQ(stack.dims(), (Dims{0, 1}));
    EXPECT_EQ(stack.fieldNames(), (std::vector<std::string>{"file", "name", "line"}));
}

TEST(ValueArray, CellsHoldValuesAndCopyOnWrite) {
    auto c = ValueArray::cell(Dims{1, 2});
    c.setCellAt(1, ValueArray::chars(u"hi"));
    const auto copy = c;
    c.setCellAt(0, ValueArray::scalar(1));
    EXPECT_EQ(copy.cellAt(1).text(), u"hi");
    EXPECT_TRUE(copy.cellAt(0).isEmpty());
    EXPECT_EQ(c.cellAt(0).realAt(0), 1);
}

namespace {
struct Plain : orrery::ocos::COSObject {
    std::shared_ptr<COSObject> clone() const override { return std::make_shared<Plain>(*this); }
};
}  // namespace

TEST(ValueArray, ObjectElementsStartInvalid) {
    auto info = std::make_shared<orrery::ocos::COSClassInfo>("pkg.Thing");
    auto objects = ValueArray::objectArray(info, Dims{1, 2});
    EXPECT_EQ(objects.className(), "pkg.Thing");
    EXPECT_FALSE(objects.isValidElement(0));
    objects.setObjectAt(1, std::make_shared<Plain>());
    EXPECT_TRUE(objects.isValidElement(1));
    EXPECT_FALSE(objects.isValidElement(7));
    EXPECT_MSGID(objects.setObjectAt(2, nullptr), "ORRERY:value:indexOutOfRange");
}
