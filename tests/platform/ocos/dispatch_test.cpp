// Tests of method dispatch and of the signature checks of calls.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

using namespace ocos_test;

TEST(Dispatch, TheFirstObjectDecidesAndCallsMustFitTheSignature) {
    const auto widgetClass = std::make_shared<COSClassInfo>("test.ocos.Widget");
    widgetClass->addMethod(lambdaMethod("heavier", {{"test.ocos.Widget"}, {}}));
    const ValueArray number = ValueArray::scalar(1);
    const ValueArray widget = ValueArray::objectArray(widgetClass, Dims{1, 1});
    ValueArray light = makeGadget("light");
    ValueArray heavy = makeGadget("heavy");
    setProperty(heavy, 0, "weight", ValueArray::scalar(9));
    const ValueArray* gadgetFirst[] = {&number, &light, &widget};
    const ValueArray* widgetFirst[] = {&widget, &light};
    EXPECT_EQ(dispatchClass(3, gadgetFirst), gadgetClass());
    EXPECT_EQ(findMethodFor("heavier", 2, widgetFirst), widgetClass->findMethod("heavier"));
    EXPECT_EQ(findMethodFor("lighter", 2, widgetFirst), nullptr);
    EXPECT_EQ(findMethodFor("heavier", 1, gadgetFirst), nullptr);

    EXPECT_TRUE(callOn("heavier", 1, {&heavy, &light})->logicalAt(0));
    EXPECT_FALSE(callOn("heavier", 0, {&light, &heavy})->logicalAt(0));
    EXPECT_MSGID_TEXT(callOn("heavier", 1, {&light, &number}), "ORRERY:ocos:argumentType",
                      "Argument 2 of 'heavier' must be a value of type 'test.ocos.Gadget'.");
    EXPECT_MSGID(callOn("heavier", 1, {&light}), "ORRERY:notEnoughInputs");
    EXPECT_MSGID(callOn("heavier", 1, {&light, &light, &light}), "ORRERY:tooManyInputs");
    EXPECT_MSGID(callOn("heavier", 2, {&light, &light}), "ORRERY:tooManyOutputs");
    // Without such a method, or without an object, nothing runs and the caller's own function is asked.
    EXPECT_EQ(callOn("sort", 1, {&light}), nullptr);
    EXPECT_EQ(callOn("heavier", 1, {&number, &number}), nullptr);
}
