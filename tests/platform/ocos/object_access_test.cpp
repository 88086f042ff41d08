// Tests of property access on object arrays: value semantics of writes and the
// errors of wrong values, names and elements.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

using namespace ocos_test;

static std::string labelOf(const ValueArray& gadgets, std::size_t i = 0) {
    return getProperty(gadgets, i, "label").textUtf8();
}

TEST(ObjectValueSemantics, WritingOneCopyLeavesEveryOtherAlone) {
    ValueArray original = makeGadget("original");
    ValueArray copy = original;
    ValueArray cell = ValueArray::cell(Dims{1, 1});
    cell.setCellAt(0, original);
    // A refused write leaves the copies sharing one instance.
    EXPECT_MSGID(setProperty(copy, 0, "label", ValueArray::scalar(1)), "ORRERY:ocos:propertyType");
    EXPECT_EQ(validInstanceAt(copy, 0), validInstanceAt(original, 0));
    setProperty(copy, 0, "label", ValueArray::chars(u"changed"));
    EXPECT_EQ(labelOf(original), "original");
    setProperty(original, 0, "label", ValueArray::chars(u"new"));
    EXPECT_EQ(labelOf(cell.cellAt(0)), "original");
    EXPECT_EQ(labelOf(copy), "changed");
    // One instance in two elements of one array splits on write too.
    ValueArray pair = ValueArray::objectArray(gadgetClass(), Dims{1, 2});
    const auto shared = gadgetClass()->newInstance();
    pair.setObjectAt(0, shared);
    pair.setObjectAt(1, shared);
    setProperty(pair, 1, "label", ValueArray::chars(u"second"));
    EXPECT_EQ(labelOf(pair, 0) + "|" + labelOf(pair, 1), "|second");
}

TEST(ObjectAccess, NewArraysHoldOneInstancePerElementAndBadAccessRaises) {
    const ValueArray filled = newObjectArray(gadgetClass(), Dims{2, 3});
    for (std::size_t i = 0; i < filled.numel(); ++i) EXPECT_TRUE(filled.isValidElement(i));
    EXPECT_NE(validInstanceAt(filled, 0), validInstanceAt(filled, 1));

    ValueArray gadgets = ValueArray::objectArray(gadgetClass(), Dims{1, 2});
    gadgets.setObjectAt(0, gadgetClass()->newInstance());
    EXPECT_MSGID_TEXT(getProperty(gadgets, 1, "label"), "ORRERY:ocos:invalidElement",
                      "Element 2 of the test.ocos.Gadget array is not a valid object.");
    EXPECT_MSGID(setProperty(gadgets, 1, "label", ValueArray::chars(u"x")), "ORRERY:ocos:invalidElement");
    EXPECT_MSGID(getProperty(gadgets, 2, "label"), "ORRERY:value:indexOutOfRange");
    EXPECT_FALSE(gadgets.isValidElement(1) || gadgets.isValidElement(7));
    EXPECT_MSGID(gadgets.setObjectAt(2, nullptr), "ORRERY:value:indexOutOfRange");
    EXPECT_MSGID_TEXT(getProperty(gadgets, 0, "colour"), "ORRERY:ocos:noSuchProperty",
                      "The class 'test.ocos.Gadget' has no property named 'colour'.");
    EXPECT_MSGID(setProperty(gadgets, 0, "colour", ValueArray()), "ORRERY:ocos:noSuchProperty");
    ValueArray notObjects = ValueArray::scalar(1);
    EXPECT_MSGID(getProperty(notObjects, 0, "label"), "ORRERY:value:wrongClass");
    EXPECT_MSGID(setProperty(notObjects, 0, "label", ValueArray()), "ORRERY:value:wrongClass");
}
