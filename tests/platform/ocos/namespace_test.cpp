// Tests of namespaces: inner namespaces, registration and lookup by dotted path.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/registry.hpp>

#include <stdexcept>

using namespace orrery::ocos;
using namespace ocos_test;

TEST(COSNamespace, InnerNamespacesAreMadeOnRequestOnly) {
    COSNamespace& top = getNamespace("nstest");
    EXPECT_EQ(&top, &getNamespace("nstest"));
    EXPECT_EQ(top.getInnerNamespace("made", false), nullptr);
    COSNamespace* made = top.getInnerNamespace("made", true);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(top.getInnerNamespace("made", false), made);
    EXPECT_EQ(made->getPath(), "nstest.made");
    EXPECT_EQ(findNamespace("nstest.made"), made);
    EXPECT_EQ(findNamespace("nstest.absent"), nullptr);
    EXPECT_THROW(top.getInnerNamespace("a.b"), std::logic_error);
}

TEST(COSNamespace, FindsClassesByFullPath) {
    COSNamespace* demo = getNamespace("orrery").getInnerNamespace("internal")->getInnerNamespace("demo");
    const auto thing = std::make_shared<COSClassInfo>("orrery.internal.demo.Thing");
    demo->registerClass("Thing", thing);
    EXPECT_EQ(findClass("orrery.internal.demo.Thing"), thing);
    EXPECT_NE(findClass("message"), nullptr);
    for (const char* miss : {"orrery.internal.demo", "orrery.internal.demo.thing", "orrery.internal.demo.Thing.x",
                             "orrery..demo.Thing", "", "Thing"}) {
        SCOPED_TRACE(miss);
        EXPECT_EQ(findClass(miss), nullptr);
    }
    EXPECT_MSGID_TEXT(getClass("orrery.internal.demo.Gone"), "ORRERY:ocos:noSuchClass",
                      "There is no class named 'orrery.internal.demo.Gone'.");
    // Registration checks the full name, and a second registration replaces the first.
    EXPECT_THROW(demo->registerClass("Other", thing), std::logic_error);
    const auto again = std::make_shared<COSClassInfo>("orrery.internal.demo.Thing");
    demo->registerClass("Thing", again);
    EXPECT_EQ(getClass("orrery.internal.demo.Thing"), again);
}

TEST(COSNamespace, FunctionsKeepTheirOrderAndAreFoundByPath) {
    gadgetClass();
    COSNamespace* log = getNamespace("nstest").getInnerNamespace("tool")->getInnerNamespace("log");
    const auto open = lambdaMethod("open", COSMethodSignature({"unicodeString"}, {}));
    log->addFunction(open);
    log->addFunction(lambdaMethod("close", COSMethodSignature({"unicodeString"}, {})));
    log->addFunction(lambdaMethod("load", COSMethodSignature({"unicodeString"}, {"test.ocos.Gadget"})));
    EXPECT_EQ(log->getFunctionNames(), (std::vector<std::string>{"open", "close", "load"}));
    EXPECT_EQ(findFunction("nstest.tool.log.open"), open);
    EXPECT_EQ(findFunction("nstest.tool.log"), nullptr);
    EXPECT_MSGID_TEXT(getFunction("nstest.tool.log.flush"), "ORRERY:ocos:noSuchFunction",
                      "There is no function named 'nstest.tool.log.flush'.");

    const auto reopened = lambdaMethod("open", {});
    log->addFunction(reopened);
    EXPECT_EQ(findFunction("nstest.tool.log.open"), reopened);
    EXPECT_EQ(log->getFunctionNames().size(), 3u);
    EXPECT_THROW(log->addFunction(lambdaMethod("bad", COSMethodSignature({"nstest.NoClass"}, {}))), std::logic_error);
    EXPECT_EQ(findFunction("nstest.tool.log.bad"), nullptr);
}
