// Tests of message and getString.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

using namespace builtin_test;

TEST(MessageBuiltins, MakeAMessageAndFormatItsText) {
    const ValueArray m = call1("message", {txt(u"ORRERY:host:file:notFound"), str(u"x.txt")});
    EXPECT_EQ(m.className(), "message");
    EXPECT_EQ(call1("getString", {m}).textUtf8(), "The file 'x.txt' was not found.");
    const ValueArray numbered = call1("message", {txt(u"ORRERY:value:indexOutOfRange"), num(8191), num(3)});
    EXPECT_EQ(call1("getString", {numbered}).textUtf8(), "Index 8191 is out of range; the array has 3 elements.");

    EXPECT_MSGID(call1("message", {txt(u"ORRERY:host:no:suchEntry")}), "ORRERY:host:message:unknownIdentifier");
    EXPECT_MSGID(call1("message", {num(1)}), "ORRERY:host:notText");
    EXPECT_MSGID(call1("message", {txt(u"ORRERY:host:file:notFound"), cellRow({})}), "ORRERY:host:message:badArgument");
    EXPECT_MSGID(call1("getString", {txt(u"text")}), "ORRERY:host:notMessage");
}
