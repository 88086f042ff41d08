// Tests of class descriptions: declaration order, lookup and validation of the
// description.
#include "gadget_class.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace orrery::ocos;
using namespace ocos_test;

namespace {

COSPropInfo doubleProperty(const char* name, const char* type = "double") {
    return COSPropInfo(name, type, [](const COSObject&) { return ValueArray(); });
}

}  // namespace

TEST(COSClassInfo, ReportsMembersInDeclarationOrderAndFindsThemByExactName) {
    const auto info = gadgetClass();
    EXPECT_EQ(info->getPropertyNames(), (std::vector<std::string>{"label", "title", "items", "record", "numbers",
                                                                  "weight", "flags", "active", "peer"}));
    EXPECT_EQ(info->getMethodNames(), (std::vector<std::string>{"heavier"}));
    ASSERT_NE(info->findProperty("weight"), nullptr);
    EXPECT_EQ(info->findProperty("weight")->getType().text(), intern("double scalar"));
    EXPECT_EQ(info->findProperty("Weight"), nullptr);
    EXPECT_EQ(info->findMethod("heavier"), info->getMethods()[0]);
    EXPECT_EQ(info->findMethod("sort"), nullptr);
}

TEST(COSClassInfo, RefusesFaultyDescriptions) {
    COSClassInfo info("test.ocos.Faulty");
    info.addProperty(doubleProperty("x"));
    EXPECT_THROW(info.addProperty(doubleProperty("x")), std::logic_error);
    // A class type must be this class or a registered one.
    EXPECT_NO_THROW(info.addProperty(doubleProperty("self", "test.ocos.Faulty")));
    EXPECT_THROW(info.addProperty(doubleProperty("ghost", "test.ocos.NotRegistered")), std::logic_error);
    EXPECT_THROW(info.addMethod(lambdaMethod("m", COSMethodSignature({"test.ocos.NotRegistered"}, {}))),
                 std::logic_error);
    info.addMethod(lambdaMethod("m", COSMethodSignature({"test.ocos.Faulty"}, {"double"})));
    EXPECT_THROW(info.addMethod(lambdaMethod("m", {})), std::logic_error);
    EXPECT_THROW(info.newInstance(), std::logic_error);
    EXPECT_EQ(info.getPropertyNames(), (std::vector<std::string>{"x", "self"}));
}
