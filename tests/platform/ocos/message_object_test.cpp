// Tests of the host's "message" class.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/message_object.hpp>

using namespace ocos_test;

TEST(MessageObject, ShowsItsContentAndFormatsItsTextOnlyForOneValidMessage) {
    const orrery::catalogue::MessageContent content{"ORRERY:value:indexOutOfRange", {std::u16string(u"x"), 3.0}};
    ValueArray message = makeMessageObject(content);
    EXPECT_TRUE(isMessageObject(message));
    EXPECT_FALSE(isMessageObject(ValueArray::objectArray(std::make_shared<COSClassInfo>("pkg.message"), Dims{1, 1})));
    EXPECT_EQ(findClass("message"), messageClass());
    EXPECT_EQ(messageContentOf(message).arguments, content.arguments);
    EXPECT_EQ(getProperty(message, 0, "Identifier").textUtf8(), "ORRERY:value:indexOutOfRange");
    const ValueArray arguments = getProperty(message, 0, "Arguments");
    EXPECT_EQ(arguments.cellAt(0).text(), u"x");
    EXPECT_EQ(arguments.cellAt(1).realAt(0), 3);
    EXPECT_MSGID_TEXT(setProperty(message, 0, "Identifier", ValueArray::chars(u"a:b")), "ORRERY:ocos:readOnlyProperty",
                      "The property 'Identifier' of class 'message' is read-only.");

    const ValueArray noField = makeMessageObject({"ORRERY:value:noSuchField", {std::u16string(u"depth")}});
    EXPECT_EQ(callOn("getString", 1, {&noField})->textUtf8(), "There is no field named 'depth'.");
    const ValueArray pair = ValueArray::objectArray(messageClass(), Dims{1, 2});
    const ValueArray unset = ValueArray::objectArray(messageClass(), Dims{1, 1});
    EXPECT_MSGID(callOn("getString", 1, {&pair}), "ORRERY:value:notScalar");
    EXPECT_MSGID(callOn("getString", 1, {&unset}), "ORRERY:ocos:invalidElement");
    const ValueArray number = ValueArray::scalar(1);
    const ValueArray* numberInput[] = {&number};
    EXPECT_MSGID(messageClass()->findMethod("getString")->call(1, nullptr, 1, numberInput), "ORRERY:ocos:argumentType");
    EXPECT_MSGID(messageContentOf(number), "ORRERY:value:wrongClass");
    EXPECT_MSGID(messageContentOf(unset), "ORRERY:ocos:invalidElement");
    EXPECT_MSGID(messageContentOf(unset, 1), "ORRERY:value:indexOutOfRange");
    EXPECT_MSGID_TEXT(makeMessageObject({"ORRERY:nowhere:atAll", {}}), "ORRERY:ocos:noSuchMessage",
                      "The message catalogue has no message with the identifier 'ORRERY:nowhere:atAll'.");
}
