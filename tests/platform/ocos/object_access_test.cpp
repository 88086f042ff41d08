// Tests of property access on object arrays: value semantics of writes and the
// errors of wrong values, names and elements.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/object_access.hpp>

using namespace orrery::ocos;
using namespace ocos_test;
using orrery::value::Dims;

namespace {

std::string labelOf(const ValueArray& gadgets, std::size_t i = 0) {
    return getProperty(gadgets, i, "label").textUtf8();
}

}  // namespace

TEST(ObjectValueSemantics, WritingACopyLeavesTheOriginalAlone) {
    ValueArray original = makeGadget("original");
    ValueArray copy = original;
    setProperty(copy, 0, "label", ValueArray::chars(u"changed"));
    EXPECT_EQ(labelOf(original), "original");
    EXPECT_EQ(labelOf(copy), "changed");
    // And the other way round, now that each holds its own instance.
    setProperty(original, 0, "weight", ValueArray::scalar(3));
    EXPECT_EQ(getProperty(copy, 0, "weight").realAt(0), 0);
}

TEST(ObjectValueSemantics, CopiesHeldElsewhereKeepTheirValue) {
    ValueArray gadgets = makeGadget("kept");
    ValueArray cell = ValueArray::cell(Dims{1, 1});
    cell.setCellAt(0, gadgets);
    const auto instance = validInstanceAt(gadgets, 0);
    setProperty(gadgets, 0, "label", ValueArray::chars(u"new"));
    EXPECT_EQ(labelOf(cell.cellAt(0)), "kept");
    EXPECT_EQ(labelOf(gadgets), "new");
    EXPECT_NE(validInstanceAt(gadgets, 0), instance);
}

TEST(ObjectValueSemantics, OneInstanceInTwoElementsSplitsOnWrite) {
    ValueArray pair = ValueArray::objectArray(gadgetClass(), Dims{1, 2});
    const auto shared = gadgetClass()->newInstance();
    pair.setObjectAt(0, shared);
    pair.setObjectAt(1, shared);
    setProperty(pair, 1, "label", ValueArray::chars(u"second"));
    EXPECT_EQ(labelOf(pair, 0), "");
    EXPECT_EQ(labelOf(pair, 1), "second");
}

TEST(ObjectValueSemantics, RefusedWriteDoesNotSplitTheCopies) {
    ValueArray original = makeGadget("same");
    ValueArray copy = original;
    EXPECT_MSGID(setProperty(copy, 0, "label", ValueArray::scalar(1)), "ORRERY:ocos:propertyType");
    EXPECT_EQ(validInstanceAt(copy, 0), validInstanceAt(original, 0));
}

TEST(ObjectAccess, NewObjectArrayFillsEveryElement) {
    const ValueArray gadgets = newObjectArray(gadgetClass(), Dims{2, 3});
    EXPECT_EQ(gadgets.className(), "test.ocos.Gadget");
    EXPECT_EQ(gadgets.dims(), (Dims{2, 3}));
    for (std::size_t i = 0; i < gadgets.numel(); ++i) EXPECT_TRUE(gadgets.isValidElement(i));
    EXPECT_NE(validInstanceAt(gadgets, 0), validInstanceAt(gadgets, 1));
    EXPECT_EQ(newObjectArray(gadgetClass(), Dims{0, 0}).numel(), 0u);
}

TEST(ObjectAccess, BadAccessRaisesCataloguedErrors) {
    ValueArray gadgets = ValueArray::objectArray(gadgetClass(), Dims{1, 2});
    gadgets.setObjectAt(0, gadgetClass()->newInstance());
    EXPECT_MSGID_TEXT(getProperty(gadgets, 1, "label"), "ORRERY:ocos:invalidElement",
                      "Element 2 of the test.ocos.Gadget array is not a valid object.");
    EXPECT_MSGID(setProperty(gadgets, 1, "label", ValueArray::chars(u"x")), "ORRERY:ocos:invalidElement");
    EXPECT_MSGID(getProperty(gadgets, 2, "label"), "ORRERY:value:indexOutOfRange");
    EXPECT_MSGID_TEXT(getProperty(gadgets, 0, "colour"), "ORRERY:ocos:noSuchProperty",
                      "The class 'test.ocos.Gadget' has no property named 'colour'.");
    EXPECT_MSGID(setProperty(gadgets, 0, "colour", ValueArray()), "ORRERY:ocos:noSuchProperty");
    ValueArray notObjects = ValueArray::scalar(1);
    EXPECT_MSGID(getProperty(notObjects, 0, "label"), "ORRERY:value:wrongClass");
    EXPECT_MSGID(setProperty(notObjects, 0, "label", ValueArray()), "ORRERY:value:wrongClass");
}
