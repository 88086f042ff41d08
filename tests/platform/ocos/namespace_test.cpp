// Tests of namespaces: inner namespaces, registration and lookup by dotted path.
#include "gadget_class.hpp"
#include "tests/support/expect_error.hpp"

using namespace ocos_test;

TEST(COSNamespace, InnerNamespacesAreMadeOnRequestOnly) {
    COSNamespace& top = getNamespace("nstest");
    EXPECT_EQ(top.getInnerNamespace("made", false), nullptr);
    COSNamespace* made = top.getInnerNamespace("made", true);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->getPath(), "nstest.made");
    EXPECT_EQ(top.getInnerNamespace("made", false), made);
    EXPECT_EQ(findNamespace("nstest.made"), made);
    EXPECT_EQ(findNamespace("nstest.absent"), nullptr);
    EXPECT_THROW(top.getInnerNamespace("a.b"), orrery::except::InternalError);
}

TEST(COSNamespace, FindsClassesByFullPath) {
    COSNamespace* demo = getNamespace("orrery").getInnerNamespace("internal")->getInnerNamespace("demo");
    const auto thing = std::make_shared<COSClassInfo>("orrery.internal.demo.Thing");
    demo->registerClass("Thing", thing);
    EXPECT_EQ(findClass("orrery.internal.demo.Thing"), thing);
    for (const char* miss : {"orrery.internal.demo", "orrery.internal.demo.thing", "orrery.internal.demo.Thing.x",
                             "orrery..demo.Thing", "", "Thing"}) {
        EXPECT_EQ(findClass(miss), nullptr) << miss;
    }
    EXPECT_MSGID_TEXT(getClass("orrery.internal.demo.Gone"), "ORRERY:ocos:noSuchClass",
                      "There is no class named 'orrery.internal.demo.Gone'.");
    // Registration checks the full name, and a second registration replaces the first.
    EXPECT_THROW(demo->registerClass("Other", thing), orrery::except::InternalError);
    const auto again = std::make_shared<COSClassInfo>("orrery.internal.demo.Thing");
    demo->registerClass("Thing", again);
    EXPECT_EQ(getClass("orrery.internal.demo.Thing"), again);
}

TEST(COSNamespace, FunctionsKeepTheirOrderAndAreCalledByPath) {
    COSNamespace* log = getNamespace("nstest").getInnerNamespace("tool")->getInnerNamespace("log");
    for (const char* name : {"open", "shout", "load"}) log->addFunction(lambdaMethod(name, {}));
    // A second function of one name replaces the first in its place.
    log->addFunction(lambdaMethod("shout", {{"asciiString"}, {"unicodeString"}},
                                  [](auto, ValueArrayPtr* plhs, auto, const ValueArray* const* prhs) {
                                      plhs[0] = makeValue(ValueArray::chars(prhs[0]->text() + u"!"));
                                  }));
    EXPECT_EQ(log->getFunctionNames(), (std::vector<std::string>{"open", "shout", "load"}));
    const ValueArray word = ValueArray::string(u"hey");
    const ValueArray wide = ValueArray::chars(u"h\u00e9");
    ValueArrayPtr out[1];
    const ValueArray* inputs[] = {&word, &wide};
    callNamespaceFunction("nstest.tool.log.shout", 1, out, 1, inputs);
    ASSERT_TRUE(out[0]);
    EXPECT_EQ(out[0]->text(), u"hey!");
    EXPECT_MSGID(callNamespaceFunction("nstest.tool.log.shout", 1, out, 1, &inputs[1]), "ORRERY:ocos:argumentType");
    EXPECT_MSGID(callNamespaceFunction("nstest.tool.log.whisper", 1, out, 1, inputs), "ORRERY:ocos:noSuchFunction");
    EXPECT_EQ(findFunction("nstest.tool.log"), nullptr);
    EXPECT_MSGID_TEXT(getFunction("nstest.tool.log.flush"), "ORRERY:ocos:noSuchFunction",
                      "There is no function named 'nstest.tool.log.flush'.");
    EXPECT_THROW(log->addFunction(lambdaMethod("bad", {{"nstest.NoClass"}, {}})), orrery::except::InternalError);
    EXPECT_EQ(findFunction("nstest.tool.log.bad"), nullptr);
}
