// Tests of class descriptions: declaration order, lookup and validation of the
// description.
#include "gadget_class.hpp"

#include <gtest/gtest.h>

using namespace ocos_test;

TEST(COSClassInfo, ReportsMembersInDeclarationOrderAndFindsThemByExactName) {
    const auto info = gadgetClass();
    EXPECT_EQ(info->getPropertyNames(), (std::vector<std::string>{"label", "title", "items", "record", "numbers",
                                                                  "weight", "flags", "active", "peer"}));
    ASSERT_NE(info->findProperty("weight"), nullptr);
    EXPECT_EQ(info->findProperty("weight")->getType().text(), intern("double scalar"));
    EXPECT_EQ(info->findProperty("Weight"), nullptr);
    EXPECT_EQ(info->findMethod("heavier"), info->getMethods()[0]);
    EXPECT_EQ(info->findMethod("sort"), nullptr);
}

TEST(COSClassInfo, RefusesFaultyDescriptions) {
    const auto property = [](const char* name, const char* type) {
        return COSPropInfo(name, type, [](const COSObject&) { return ValueArray(); });
    };
    COSClassInfo info("test.ocos.Faulty");
    info.addProperty(property("x", "double"));
    EXPECT_THROW(info.addProperty(property("x", "double")), orrery::except::InternalError);
    // A class type must be this class or a registered one.
    EXPECT_NO_THROW(info.addProperty(property("self", "test.ocos.Faulty")));
    EXPECT_THROW(info.addProperty(property("ghost", "test.ocos.NotRegistered")), orrery::except::InternalError);
    EXPECT_THROW(info.addMethod(lambdaMethod("m", {{"test.ocos.NotRegistered"}, {}})), orrery::except::InternalError);
    info.addMethod(lambdaMethod("m", {{"test.ocos.Faulty"}, {"double"}}));
    EXPECT_THROW(info.addMethod(lambdaMethod("m", {})), orrery::except::InternalError);
    EXPECT_THROW(info.newInstance(), orrery::except::InternalError);
    EXPECT_EQ(info.getPropertyNames(), (std::vector<std::string>{"x", "self"}));
}
