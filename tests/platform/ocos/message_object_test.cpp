// Tests of the host's "message" class.
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/ocos/message_object.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/registry.hpp>

using namespace orrery::ocos;
using orrery::catalogue::MessageContent;
using orrery::value::ClassId;
using orrery::value::Dims;
using orrery::value::ValueArray;
using orrery::value::ValueArrayPtr;

TEST(MessageObject, IsAScalarOfTheClassMessageKeepingItsContent) {
    const MessageContent content{"ORRERY:value:indexOutOfRange", {std::u16string(u"x"), 3.0}};
    const ValueArray message = makeMessageObject(content);
    EXPECT_EQ(message.className(), "message");
    EXPECT_EQ(message.dims(), (Dims{1, 1}));
    EXPECT_TRUE(isMessageObject(message));
    EXPECT_EQ(findClass("message"), messageClass());
    EXPECT_EQ(messageContentOf(message).arguments, content.arguments);
    EXPECT_FALSE(isMessageObject(ValueArray::chars(u"message")));
    EXPECT_FALSE(isMessageObject(ValueArray::objectArray(std::make_shared<COSClassInfo>("pkg.message"), Dims{1, 1})));
}

TEST(MessageObject, PropertiesShowIdentifierAndArguments) {
    ValueArray message = makeMessageObject({"ORRERY:value:indexOutOfRange", {std::u16string(u"x"), 3.0}});
    EXPECT_EQ(messageClass()->getPropertyNames(), (std::vector<std::string>{"Identifier", "Arguments"}));
    EXPECT_EQ(getProperty(message, 0, "Identifier").textUtf8(), "ORRERY:value:indexOutOfRange");
    const ValueArray arguments = getProperty(message, 0, "Arguments");
    ASSERT_TRUE(arguments.is(ClassId::Cell));
    EXPECT_EQ(arguments.dims(), (Dims{1, 2}));
    EXPECT_EQ(arguments.cellAt(0).text(), u"x");
    EXPECT_EQ(arguments.cellAt(1).realAt(0), 3);
    EXPECT_MSGID_TEXT(setProperty(message, 0, "Identifier", ValueArray::chars(u"a:b")), "ORRERY:ocos:readOnlyProperty",
                      "The property 'Identifier' of class 'message' is read-only.");
}

TEST(MessageObject, GetStringFormatsTheCatalogueText) {
    const ValueArray message = makeMessageObject({"ORRERY:value:noSuchField", {std::u16string(u"depth")}});
    ValueArrayPtr out[1];
    const ValueArray* inputs[] = {&message};
    callMethod("getString", 1, out, 1, inputs);
    ASSERT_TRUE(out[0]);
    EXPECT_TRUE(out[0]->is(ClassId::Char));
    EXPECT_EQ(out[0]->textUtf8(), "There is no field named 'depth'.");
}

TEST(MessageObject, BadInputsRaiseCataloguedErrors) {
    const ValueArray pair = ValueArray::objectArray(messageClass(), Dims{1, 2});
    const ValueArray unset = ValueArray::objectArray(messageClass(), Dims{1, 1});
    const ValueArray number = ValueArray::scalar(1);
    ValueArrayPtr out[1];
    const ValueArray* inputs[] = {&pair, &unset, &number};
    EXPECT_MSGID(callMethod("getString", 1, out, 1, &inputs[0]), "ORRERY:value:notScalar");
    EXPECT_MSGID(callMethod("getString", 1, out, 1, &inputs[1]), "ORRERY:ocos:invalidElement");
    EXPECT_MSGID(messageClass()->findMethod("getString")->call(1, out, 1, &inputs[2]), "ORRERY:ocos:argumentType");
    EXPECT_MSGID_TEXT(makeMessageObject({"ORRERY:nowhere:atAll", {}}), "ORRERY:ocos:noSuchMessage",
                      "The message catalogue has no message with the identifier 'ORRERY:nowhere:atAll'.");
    EXPECT_MSGID(messageContentOf(number), "ORRERY:value:wrongClass");
    EXPECT_MSGID(messageContentOf(unset), "ORRERY:ocos:invalidElement");
    EXPECT_MSGID(messageContentOf(unset, 1), "ORRERY:value:indexOutOfRange");
}
