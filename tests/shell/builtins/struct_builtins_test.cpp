// Tests of struct, fieldnames, isfield and properties. struct() and the empty
// structure are proved by the display_containers script test.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/console/console_capture.hpp>

using namespace builtin_test;

TEST(StructBuiltin, BuildsTheLanguagesForms) {
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
    EXPECT_MSGID(call1("struct", {txt(u"a"), num(1), txt(u"b")}), "ORRERY:host:struct:oddArguments");
    EXPECT_MSGID(call1("struct", {num(1), num(1)}), "ORRERY:host:notText");
    EXPECT_MSGID(call1("struct", {txt(u"1a"), num(1)}), "ORRERY:host:struct:badFieldName");
    EXPECT_MSGID(call1("struct", {txt(u"a"), num(1), txt(u"a"), num(2)}), "ORRERY:host:struct:duplicateField");
    EXPECT_MSGID(call1("struct", {txt(u"a"), cellRow({num(1), num(2)}), txt(u"b"), cellRow({num(1), num(2), num(3)})}),
                 "ORRERY:host:struct:cellSizeMismatch");
    EXPECT_MSGID(call1("struct", {num(1)}), "ORRERY:host:struct:notStruct");
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

TEST(PropertiesBuiltin, ListsAClassesPropertiesInOrder) {
    const ValueArray message = call1("message", {txt(u"ORRERY:host:file:notFound"), str(u"x.txt")});
    const ValueArray names = call1("properties", {message});
    ASSERT_EQ(names.dims(), (Dims{2, 1}));
    EXPECT_EQ(names.cellAt(0).textUtf8(), "Identifier") << "in the order of declaration";
    EXPECT_TRUE(truth(call1("isequal", {call1("fieldnames", {message}), names})));
    const orrery::console::ConsoleCapture console;
    call("properties", 0, {message});
    EXPECT_EQ(console.output(), "Properties for class message:\n\n    Identifier\n    Arguments\n\n");
}

TEST(PropertiesBuiltin, NeedsAnObjectOrAClassName) {
    EXPECT_MSGID(call1("properties", {num(1)}), "ORRERY:host:notObject");
    EXPECT_MSGID(call1("properties", {txt(u"no.such.Class")}), "ORRERY:ocos:noSuchClass");
}
