// Tests of declared property types: which values each type text accepts, what
// the setter receives, and that refused values never reach the setter.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

using namespace ocos_test;
using orrery::value::ClassId;

TEST(PropertyTyping, AcceptsValuesOfTheDeclaredTypeOnlyAndRefusesBeforeTheSetterRuns) {
    const auto other = std::make_shared<COSClassInfo>("test.ocos.Other");
    struct Case {
        const char* property;
        ValueArray value;
        bool accepted;
    };
    const Case cases[] = {
        {"label", ValueArray::chars(u"plain"), true},
        {"label", ValueArray::missingString(), true},
        {"label", ValueArray::chars(u""), true},  // 0-by-0
        {"label", ValueArray::chars(u"caf\u00e9"), false},
        {"label", ValueArray::charArray(Dims{2, 1}, u"ab"), false},
        {"title", ValueArray::string(u"\u03a9"), true},
        {"title", ValueArray::missingString(), false},
        {"items", ValueArray::cell(Dims{2, 3}), true},
        {"items", ValueArray::structArray(Dims{1, 1}), false},
        {"record", ValueArray::structArray(Dims{0, 0}, {"a"}), true},
        {"record", ValueArray::cell(Dims{1, 1}), false},
        {"numbers", ValueArray::doubles(Dims{1, 3}, {1, 2, 3}), true},
        {"weight", ValueArray::scalar(2.5), true},
        {"numbers", ValueArray::numericScalar(ClassId::Single, 1), false},
        {"weight", ValueArray(), false},
        {"weight", ValueArray::doubles(Dims{1, 2}, {1, 2}), false},
        {"flags", ValueArray::scalar(1), false},
        {"weight", ValueArray::numericScalar(ClassId::Int32, 3), false},
        {"active", ValueArray::scalar(1), false},
        {"flags", ValueArray::logicals(Dims{2, 1}, {true, false}), true},
        {"peer", makeGadget("other"), true},
        {"active", ValueArray::logicalScalar(true), true},
        {"peer", ValueArray::objectArray(other, Dims{1, 1}), false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.property) + " <- " + c.value.className() + " " + c.value.dims().text());
        ValueArray gadget = makeGadget("g");
        const int writes = gadgetAt(gadget).writes;
        if (c.accepted) {
            setProperty(gadget, 0, c.property, c.value);
        } else {
            EXPECT_MSGID(setProperty(gadget, 0, c.property, c.value), "ORRERY:ocos:propertyType");
        }
        EXPECT_EQ(gadgetAt(gadget).writes, writes + (c.accepted ? 1 : 0));
    }
    ValueArray gadget = makeGadget("g");
    EXPECT_MSGID_TEXT(setProperty(gadget, 0, "weight", ValueArray::chars(u"heavy")), "ORRERY:ocos:propertyType",
                      "The property 'weight' of class 'test.ocos.Gadget' must hold a value of type 'double scalar'.");
}

TEST(PropertyTyping, SettersReceiveConvertedValues) {
    ValueArray gadget = makeGadget("g");
    setProperty(gadget, 0, "label", ValueArray::string(u"from string"));
    EXPECT_EQ(gadgetAt(gadget).label, "from string");
    setProperty(gadget, 0, "label", ValueArray::missingString());
    EXPECT_EQ(gadgetAt(gadget).label, "");
    setProperty(gadget, 0, "title", ValueArray::chars(u"\u00e9t\u00e9"));
    EXPECT_EQ(gadgetAt(gadget).title, u"\u00e9t\u00e9");
    setProperty(gadget, 0, "weight", ValueArray::scalar(-0.5));
    EXPECT_EQ(gadgetAt(gadget).weight, -0.5);
    setProperty(gadget, 0, "active", ValueArray::logicalScalar(true));
    EXPECT_TRUE(gadgetAt(gadget).active);
}

TEST(PropertyTyping, BadDescriptionsAreInternalFaults) {
    const auto get = [](const Gadget& g) { return g.weight; };
    const auto set = [](Gadget& g, double w) { g.weight = w; };
    for (const char* type : {"string", "Double scalar", "asciistring", "double  scalar", "", "a..b", "1pkg.C"}) {
        EXPECT_THROW(COSPropInfo("p", type, [](const COSObject&) { return ValueArray(); }),
                     orrery::except::InternalError)
            << type;
    }
    // Accessors of one value type cannot serve a property of another.
    EXPECT_THROW(makeProperty<Gadget>("w", "double", get, set), orrery::except::InternalError);
    EXPECT_THROW(makeProperty<Gadget>("w", "logical scalar", get, set), orrery::except::InternalError);
    EXPECT_THROW(makeProperty<Gadget>("bad name", "double scalar", get, set), orrery::except::InternalError);
    EXPECT_THROW(COSPropInfo("p", "double", nullptr), orrery::except::InternalError);
}
