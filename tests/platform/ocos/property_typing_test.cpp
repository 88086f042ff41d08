// Tests of declared property types: which values each type text accepts, what
// the setter receives, and that refused values never reach the setter.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/message_object.hpp>
#include <orrery/ocos/object_access.hpp>

#include <stdexcept>

using namespace orrery::ocos;
using namespace ocos_test;
using orrery::value::ClassId;
using orrery::value::Dims;

namespace {

struct TypingCase {
    const char* property;
    ValueArray value;
};

ValueArray otherClassObject() {
    static const auto other = std::make_shared<COSClassInfo>("test.ocos.Other");
    return ValueArray::objectArray(other, Dims{1, 1});
}

}  // namespace

TEST(PropertyTyping, AcceptsValuesOfTheDeclaredType) {
    const TypingCase cases[] = {
        {"label", ValueArray::chars(u"plain")},
        {"label", ValueArray::chars(u"")},  // 0-by-0
        {"label", ValueArray::charArray(Dims{1, 0}, u"")},
        {"label", ValueArray::string(u"text")},
        {"label", ValueArray::missingString()},
        {"title", ValueArray::chars(u"caf\u00e9")},
        {"title", ValueArray::string(u"\u03a9")},
        {"items", ValueArray::cell(Dims{2, 3})},
        {"record", ValueArray::structArray(Dims{0, 0}, {"a"})},
        {"numbers", ValueArray::doubles(Dims{1, 3}, {1, 2, 3})},
        {"numbers", ValueArray()},
        {"weight", ValueArray::scalar(2.5)},
        {"flags", ValueArray::logicals(Dims{2, 1}, {true, false})},
        {"active", ValueArray::logicalScalar(true)},
        {"peer", makeGadget("other")},
    };
    for (const auto& [property, value] : cases) {
        SCOPED_TRACE(std::string(property) + " <- " + value.className() + " " + value.dims().text());
        ValueArray gadget = makeGadget("g");
        const int before = gadgetAt(gadget).writes;
        setProperty(gadget, 0, property, value);
        EXPECT_EQ(gadgetAt(gadget).writes, before + 1);
    }
}

TEST(PropertyTyping, RefusesOtherValuesBeforeTheSetterRuns) {
    const TypingCase cases[] = {
        {"label", ValueArray::chars(u"caf\u00e9")},
        {"label", ValueArray::string(u"\u00e9")},
        {"label", ValueArray::charArray(Dims{2, 1}, u"ab")},
        {"label", ValueArray::strings(Dims{1, 2}, {u"a", u"b"})},
        {"label", ValueArray::scalar(5)},
        {"title", ValueArray::missingString()},
        {"title", ValueArray::cell(Dims{1, 1})},
        {"items", ValueArray::structArray(Dims{1, 1})},
        {"record", ValueArray::cell(Dims{1, 1})},
        {"numbers", ValueArray::numericScalar(ClassId::Single, 1)},
        {"numbers", ValueArray::logicalScalar(true)},
        {"weight", ValueArray::doubles(Dims{1, 2}, {1, 2})},
        {"weight", ValueArray()},
        {"weight", ValueArray::logicalScalar(true)},
        {"weight", ValueArray::numericScalar(ClassId::Int32, 3)},
        {"weight", ValueArray::string(u"1")},
        {"flags", ValueArray::scalar(1)},
        {"active", ValueArray::scalar(1)},  // numbers are not taken as flags
        {"active", ValueArray::logicals(Dims{1, 2}, {true, true})},
        {"peer", otherClassObject()},
        {"peer", makeMessageObject({"ORRERY:value:notScalar", {}})},
        {"peer", ValueArray::scalar(0)},
    };
    for (const auto& [property, value] : cases) {
        SCOPED_TRACE(std::string(property) + " <- " + value.className() + " " + value.dims().text());
        ValueArray gadget = makeGadget("g");
        const int writes = gadgetAt(gadget).writes;
        EXPECT_MSGID(setProperty(gadget, 0, property, value), "ORRERY:ocos:propertyType");
        EXPECT_EQ(gadgetAt(gadget).writes, writes);
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
    const char* badTypes[] = {"string", "Double scalar", "asciistring", "double  scalar", "", "a..b", "1pkg.C"};
    for (const char* type : badTypes) {
        SCOPED_TRACE(type);
        EXPECT_THROW(COSPropInfo("p", type, [](const COSObject&) { return ValueArray(); }), std::logic_error);
    }
    // Accessors of one value type cannot serve a property of another.
    EXPECT_THROW(makeProperty<Gadget>("w", "double", get, set), std::logic_error);
    EXPECT_THROW(makeProperty<Gadget>("w", "logical scalar", get, set), std::logic_error);
    EXPECT_THROW(makeProperty<Gadget>("bad name", "double scalar", get, set), std::logic_error);
    EXPECT_THROW(COSPropInfo("p", "double", nullptr), std::logic_error);
}
