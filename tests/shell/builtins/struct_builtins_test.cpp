// Tests of struct, fieldnames, isfield and properties.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/class_info.hpp>

#include <memory>

using namespace builtin_test;

TEST(StructBuiltin, BuildsTheLanguagesForms) {
    const ValueArray none = call1("struct");
    EXPECT_EQ(none.dims(), (Dims{1, 1}));
    EXPECT_TRUE(none.fieldNames().empty());

    const ValueArray empty = call1("struct", {txt(u"a"), ValueArray::cell(Dims{0, 0})});
    EXPECT_EQ(empty.dims(), (Dims{0, 0}));
    EXPECT_TRUE(empty.hasField("a"));

    const ValueArray spread = call1("struct", {txt(u"a"), cellRow({num(1), num(2)}), str(u"b"), txt(u"x")});
    ASSERT_EQ(spread.dims(), (Dims{1, 2}));
    EXPECT_EQ(spread.field(1, "a")->realAt(0), 2);
    EXPECT_EQ(spread.field(1, "b")->textUtf8(), "x") << "plain values go to every element";

    const ValueArray wrapped = call1("struct", {txt(u"c"), cellRow({cellRow({num(1), num(2)})})});
    ASSERT_EQ(wrapped.dims(), (Dims{1, 1}));
    EXPECT_EQ(wrapped.field(0, "c")->dims(), (Dims{1, 2})) << "a 1-by-1 cell wraps one value";

    EXPECT_TRUE(truth(call1("isequal", {call1("struct", {spread}), spread})));
}

TEST(StructBuiltin, RejectsMalformedArguments) {
    const struct {
        const char* name;
        std::vector<ValueArray> inputs;
        const char* id;
    } cases[] = {
        {"odd count", {txt(u"a"), num(1), txt(u"b")}, "ORRERY:host:struct:oddArguments"},
        {"name not text", {num(1), num(1)}, "ORRERY:host:notText"},
        {"bad name", {txt(u"1a"), num(1)}, "ORRERY:host:struct:badFieldName"},
        {"name with a blank", {txt(u"a b"), num(1)}, "ORRERY:host:struct:badFieldName"},
        {"repeated name", {txt(u"a"), num(1), txt(u"a"), num(2)}, "ORRERY:host:struct:duplicateField"},
        {"cell sizes", {txt(u"a"), cellRow({num(1), num(2)}), txt(u"b"), cellRow({num(1), num(2), num(3)})},
         "ORRERY:host:struct:cellSizeMismatch"},
        {"single non-struct", {num(1)}, "ORRERY:host:struct:notStruct"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_MSGID(call1("struct", c.inputs), c.id);
    }
}

TEST(FieldnamesBuiltin, ListsFieldsAsAColumnAndIsfieldFindsThem) {
    const ValueArray s = call1("struct", {txt(u"b"), num(1), txt(u"a"), num(2)});
    const ValueArray names = call1("fieldnames", {s});
    ASSERT_EQ(names.dims(), (Dims{2, 1}));
    EXPECT_EQ(names.cellAt(0).textUtf8(), "b") << "in the order of creation";
    EXPECT_EQ(call1("fieldnames", {call1("struct")}).dims(), (Dims{0, 1}));
    EXPECT_MSGID(call1("fieldnames", {num(1)}), "ORRERY:host:notStructOrObject");

    EXPECT_TRUE(truth(call1("isfield", {s, str(u"a")})));
    EXPECT_FALSE(truth(call1("isfield", {num(1), txt(u"a")})));
    EXPECT_EQ(numbers(call1("isfield", {s, cellRow({txt(u"a"), txt(u"z"), num(1)})})), (std::vector<double>{1, 0, 0}));
}

namespace {

struct Point : orrery::ocos::COSObject {
    std::shared_ptr<COSObject> clone() const override { return std::make_shared<Point>(); }
};

}  // namespace

TEST(PropertiesBuiltin, ListsAClassesPropertiesInOrder) {
    auto info = std::make_shared<orrery::ocos::COSClassInfo>("builtinstest.Point");
    const auto zero = [](const orrery::ocos::COSObject&) { return num(0); };
    info->addProperty(orrery::ocos::COSPropInfo("Y", "double", zero));
    info->addProperty(orrery::ocos::COSPropInfo("X", "double", zero));
    ValueArray point = ValueArray::objectArray(info, Dims{1, 1});
    point.setObjectAt(0, std::make_shared<Point>());

    const ValueArray names = call1("properties", {point});
    ASSERT_EQ(names.dims(), (Dims{2, 1}));
    EXPECT_EQ(names.cellAt(0).textUtf8(), "Y");
    EXPECT_TRUE(truth(call1("isequal", {call1("fieldnames", {point}), names})));
    const CapturedOutput output;
    call("properties", 0, {point});
    EXPECT_EQ(output.out(), "Properties for class builtinstest.Point:\n\n    Y\n    X\n\n");
}

TEST(PropertiesBuiltin, NeedsAnObjectOrAClassName) {
    EXPECT_MSGID(call1("properties", {num(1)}), "ORRERY:host:notObject");
    EXPECT_MSGID(call1("properties", {txt(u"no.such.Class")}), "ORRERY:ocos:noSuchClass");
}
