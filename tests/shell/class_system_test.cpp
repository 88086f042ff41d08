// The evaluator meets the class system: operators run the methods an object's
// class defines, properties read like fields, methods can be called with a
// dot, and dotted names reach namespace functions.
#include "shell/eval/interpreter.hpp"

#include "shell/lang/parser.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/namespace.hpp>
#include <orrery/ocos/prop_template.hpp>
#include <orrery/ocos/registry.hpp>

#include <sstream>

using namespace orrery;
using value::ValueArray;

namespace {

class Thing final : public ocos::COSObject {
public:
    explicit Thing(double size) : size(size) {}
    std::shared_ptr<ocos::COSObject> clone() const override { return std::make_shared<Thing>(*this); }
    double size;
};

double sizeOf(const ValueArray& v) { return ocos::instanceAs<Thing>(*v.objectAt(0)).size; }

class EqMI final : public ocos::COSMethodInfo {
public:
    EqMI() : COSMethodInfo("eq", ocos::COSMethodSignature({"ShellTestThing", "ShellTestThing"}, {"logical scalar"})) {}
    void invoke(std::int32_t, value::ValueArrayPtr* plhs, std::int32_t, const ValueArray* const* prhs) const override {
        plhs[0] = value::makeValue(ValueArray::logicalScalar(sizeOf(*prhs[0]) == sizeOf(*prhs[1])));
    }
};

class GrowMI final : public ocos::COSMethodInfo {
public:
    GrowMI() : COSMethodInfo("grow", ocos::COSMethodSignature({"ShellTestThing", "double"}, {"double"})) {}
    void invoke(std::int32_t, value::ValueArrayPtr* plhs, std::int32_t, const ValueArray* const* prhs) const override {
        plhs[0] = value::makeValue(ValueArray::scalar(sizeOf(*prhs[0]) + prhs[1]->realAt(0)));
    }
};

class TwiceMI final : public ocos::COSMethodInfo {
public:
    TwiceMI() : COSMethodInfo("twice", ocos::COSMethodSignature({"double"}, {"double"})) {}
    void invoke(std::int32_t, value::ValueArrayPtr* plhs, std::int32_t, const ValueArray* const* prhs) const override {
        plhs[0] = value::makeValue(ValueArray::scalar(2 * prhs[0]->realAt(0)));
    }
};

std::shared_ptr<const ocos::COSClassInfo> thingClass() {
    static const auto info = [] {
        auto described = std::make_shared<ocos::COSClassInfo>("ShellTestThing");
        described->addProperty(
            ocos::makeReadOnlyProperty<Thing>("size", "double scalar", [](const Thing& t) { return t.size; }));
        described->addMethod(std::make_shared<EqMI>());
        described->addMethod(std::make_shared<GrowMI>());
        ocos::rootNamespace().registerClass("ShellTestThing", described);
        ocos::getNamespace("shelltest").getInnerNamespace("inner")->addFunction(std::make_shared<TwiceMI>());
        return std::shared_ptr<const ocos::COSClassInfo>(described);
    }();
    return info;
}

ValueArray thing(double size) {
    ValueArray object = ValueArray::objectArray(thingClass(), value::Dims{1, 1});
    object.setObjectAt(0, std::make_shared<Thing>(size));
    return object;
}

class ClassSystemTest : public ::testing::Test {
protected:
    void SetUp() override {
        interpreter_.baseWorkspace().set("a", thing(1));
        interpreter_.baseWorkspace().set("b", thing(1));
        interpreter_.baseWorkspace().set("c", thing(2));
    }
    std::string run(std::string_view source) {
        output_.str("");
        interpreter_.run(shell::lang::parse(source, u"test"), u"test", u"");
        return output_.str();
    }
    // The identifier of the error the source raises ("" for none).
    std::string errorOf(std::string_view source) {
        try {
            run(source);
        } catch (const except::QException& error) {
            return error.identifier();
        }
        return "";
    }
    std::ostringstream output_;
    shell::eval::Interpreter interpreter_{output_};
};

}  // namespace

TEST_F(ClassSystemTest, ComparisonsRunTheClassMethod) {
    EXPECT_EQ(run("a == b"), "ans = 1\n");
    EXPECT_EQ(run("a == c"), "ans = 0\n");
    EXPECT_EQ(errorOf("a ~= b"), "ORRERY:shell:unsupportedOperation");
}

TEST_F(ClassSystemTest, PropertiesReadLikeFieldsAndRefuseWrites) {
    EXPECT_EQ(run("c.size"), "ans = 2\n");
    EXPECT_EQ(errorOf("c.size = 3;"), "ORRERY:ocos:readOnlyProperty");
    EXPECT_EQ(run("c.size"), "ans = 2\n");
    EXPECT_EQ(run("c"), "c =\n  ShellTestThing with properties:\n    size: 2\n");
}

TEST_F(ClassSystemTest, MethodsCanBeCalledWithADot) {
    EXPECT_EQ(run("c.grow(5)"), "ans = 7\n");
    EXPECT_EQ(run("grow(c, 1)"), "ans = 3\n");
}

TEST_F(ClassSystemTest, DottedNamesReachNamespaceFunctions) {
    thingClass();
    EXPECT_EQ(run("x = shelltest.inner.twice(4)"), "x = 8\n");
    EXPECT_EQ(errorOf("shelltest.inner.missing(4)"), "ORRERY:undefinedFunction");
    EXPECT_EQ(errorOf("shelltest.inner.twice('a', 2)"), "ORRERY:tooManyInputs");
}
