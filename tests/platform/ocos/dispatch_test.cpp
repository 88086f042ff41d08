// Tests of method dispatch and of the signature checks of calls.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/dispatch.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/registry.hpp>

using namespace orrery::ocos;
using namespace ocos_test;
using orrery::value::Dims;
using orrery::value::makeValue;
using orrery::value::ValueArrayPtr;

namespace {

std::shared_ptr<const COSClassInfo> widgetClass() {
    static const auto info = [] {
        auto made = std::make_shared<COSClassInfo>("test.ocos.Widget");
        made->addMethod(lambdaMethod("heavier", COSMethodSignature({"test.ocos.Widget"}, {})));
        return made;
    }();
    return info;
}

ValueArray gadgetWithWeight(double weight) {
    ValueArray gadget = makeGadget("g");
    setProperty(gadget, 0, "weight", ValueArray::scalar(weight));
    return gadget;
}

}  // namespace

TEST(Dispatch, TheFirstObjectInputDecides) {
    const ValueArray number = ValueArray::scalar(1);
    const ValueArray gadget = makeGadget("g");
    const ValueArray widget = ValueArray::objectArray(widgetClass(), Dims{1, 1});
    const ValueArray* gadgetFirst[] = {&number, &gadget, &widget};
    const ValueArray* widgetFirst[] = {&widget, &gadget};
    EXPECT_EQ(dispatchClass(3, gadgetFirst), gadgetClass());
    EXPECT_EQ(findMethodFor("heavier", 3, gadgetFirst), gadgetClass()->findMethod("heavier"));
    EXPECT_EQ(findMethodFor("heavier", 2, widgetFirst), widgetClass()->findMethod("heavier"));
    EXPECT_EQ(findMethodFor("lighter", 2, widgetFirst), nullptr);
    EXPECT_EQ(findMethodFor("heavier", 1, gadgetFirst), nullptr);
}

TEST(Dispatch, CallMethodRunsTheClassMethod) {
    const ValueArray light = gadgetWithWeight(1);
    const ValueArray heavy = gadgetWithWeight(9);
    ValueArrayPtr out[1];
    const ValueArray* inputs[] = {&heavy, &light};
    callMethod("heavier", 1, out, 2, inputs);
    ASSERT_TRUE(out[0]);
    EXPECT_TRUE(out[0]->logicalAt(0));
    const ValueArray* swapped[] = {&light, &heavy};
    callMethod("heavier", 0, out, 2, swapped);
    EXPECT_FALSE(out[0]->logicalAt(0));
}

TEST(Dispatch, BadCallsRaiseBeforeTheMethodRuns) {
    const ValueArray gadget = makeGadget("g");
    const ValueArray number = ValueArray::scalar(2);
    ValueArrayPtr out[2];
    const ValueArray* gadgetAndNumber[] = {&gadget, &number};
    const ValueArray* threeGadgets[] = {&gadget, &gadget, &gadget};
    const ValueArray* twoNumbers[] = {&number, &number};
    EXPECT_MSGID_TEXT(callMethod("heavier", 1, out, 2, gadgetAndNumber), "ORRERY:ocos:argumentType",
                      "Argument 2 of 'heavier' must be a value of type 'test.ocos.Gadget'.");
    EXPECT_MSGID(callMethod("heavier", 1, out, 1, threeGadgets), "ORRERY:notEnoughInputs");
    EXPECT_MSGID(callMethod("heavier", 1, out, 3, threeGadgets), "ORRERY:tooManyInputs");
    EXPECT_MSGID(callMethod("heavier", 2, out, 2, threeGadgets), "ORRERY:tooManyOutputs");
    EXPECT_MSGID_TEXT(callMethod("sort", 1, out, 1, threeGadgets), "ORRERY:ocos:noSuchMethod",
                      "The class 'test.ocos.Gadget' has no method named 'sort'.");
    EXPECT_MSGID(callMethod("heavier", 1, out, 2, twoNumbers), "ORRERY:undefinedFunction");
    EXPECT_FALSE(out[0]);
}

TEST(Dispatch, NamespaceFunctionsAreCalledByPath) {
    getNamespace("test").getInnerNamespace("ocos")->getInnerNamespace("tools")->addFunction(
        lambdaMethod("shout", COSMethodSignature({"asciiString"}, {"unicodeString"}),
                     [](std::int32_t, ValueArrayPtr* plhs, std::int32_t, const ValueArray* const* prhs) {
                         plhs[0] = makeValue(ValueArray::chars(prhs[0]->text() + u"!"));
                     }));
    const ValueArray word = ValueArray::string(u"hey");
    const ValueArray wide = ValueArray::chars(u"h\u00e9");
    ValueArrayPtr out[1];
    const ValueArray* inputs[] = {&word, &wide};
    callNamespaceFunction("test.ocos.tools.shout", 1, out, 1, inputs);
    EXPECT_EQ(out[0]->text(), u"hey!");
    EXPECT_MSGID(callNamespaceFunction("test.ocos.tools.shout", 1, out, 1, &inputs[1]), "ORRERY:ocos:argumentType");
    EXPECT_MSGID(callNamespaceFunction("test.ocos.tools.whisper", 1, out, 1, inputs), "ORRERY:ocos:noSuchFunction");
}
