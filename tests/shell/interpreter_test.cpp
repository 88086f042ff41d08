// The evaluator: how many outputs each kind of call requests, what a
// statement displays, the errors that leave a run, and how it meets the class
// system: operators run the methods an object's class defines, properties
// read like fields, methods can be called with a dot, and dotted names reach
// namespace functions.
#include "shell/eval/interpreter.hpp"

#include "shell/lang/parser.hpp"
#include "shell/startup/large_stack.hpp"
#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/namespace.hpp>
#include <orrery/ocos/prop_template.hpp>
#include <orrery/ocos/registry.hpp>

using namespace orrery;
using orrery::testing::userErrorOf;
using value::ValueArray;

namespace {

// Records what it was asked for and fills min(max(nlhs, 1), 3) outputs with 1, 2, 3.
int lastRequested = -1;
void probeOutputs(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t, const ValueArray* const*) {
    lastRequested = nlhs;
    for (int i = 0; i < std::min(std::max(nlhs, 1), 3); ++i) plhs[i] = value::makeValue(ValueArray::scalar(i + 1));
}
void probeNothing(std::int32_t nlhs, value::ValueArrayPtr*, std::int32_t, const ValueArray* const*) {
    lastRequested = nlhs;
}

// ---- a class of the host's class system ------------------------------------------

class Thing final : public ocos::COSObject {
public:
    explicit Thing(double size) : size(size) {}
    std::shared_ptr<ocos::COSObject> clone() const override { return std::make_shared<Thing>(*this); }
    double size;
};

double sizeOf(const ValueArray& v) { return ocos::instanceAs<Thing>(*v.objectAt(0)).size; }

// A method whose one output is computed from its inputs by a plain function.
class MethodMI final : public ocos::COSMethodInfo {
public:
    using Body = ValueArray (*)(const ValueArray* const* inputs);
    MethodMI(std::string name, ocos::COSMethodSignature signature, Body body)
        : COSMethodInfo(std::move(name), std::move(signature)), body_(body) {}
    void invoke(std::int32_t, value::ValueArrayPtr* plhs, std::int32_t, const ValueArray* const* prhs) const override {
        plhs[0] = value::makeValue(body_(prhs));
    }

private:
    Body body_;
};

ValueArray eq(const ValueArray* const* in) { return ValueArray::logicalScalar(sizeOf(*in[0]) == sizeOf(*in[1])); }
ValueArray grow(const ValueArray* const* in) { return ValueArray::scalar(sizeOf(*in[0]) + in[1]->realAt(0)); }
ValueArray twice(const ValueArray* const* in) { return ValueArray::scalar(2 * in[0]->realAt(0)); }

std::shared_ptr<const ocos::COSClassInfo> thingClass() {
    static const auto info = [] {
        auto described = std::make_shared<ocos::COSClassInfo>("ShellTestThing");
        described->addProperty(
            ocos::makeReadOnlyProperty<Thing>("size", "double scalar", [](const Thing& t) { return t.size; }));
        const ocos::COSMethodSignature eqSignature({"ShellTestThing", "ShellTestThing"}, {"logical scalar"});
        described->addMethod(std::make_shared<MethodMI>("eq", eqSignature, eq));
        described->addMethod(std::make_shared<MethodMI>(
            "grow", ocos::COSMethodSignature({"ShellTestThing", "double"}, {"double"}), grow));
        ocos::rootNamespace().registerClass("ShellTestThing", described);
        const auto inner = ocos::getNamespace("shelltest").getInnerNamespace("inner");
        inner->addFunction(
            std::make_shared<MethodMI>("twice", ocos::COSMethodSignature({"double"}, {"double"}), twice));
        return std::shared_ptr<const ocos::COSClassInfo>(described);
    }();
    return info;
}

ValueArray thing(double size) {
    ValueArray object = ValueArray::objectArray(thingClass(), value::Dims{1, 1});
    object.setObjectAt(0, std::make_shared<Thing>(size));
    return object;
}

class InterpreterTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        interp::registerFunction("probeOutputs", probeOutputs);
        interp::registerFunction("probeNothing", probeNothing);
        thingClass();
    }
    void SetUp() override {
        interpreter_.baseWorkspace().set("small", thing(1));
        interpreter_.baseWorkspace().set("same", thing(1));
        interpreter_.baseWorkspace().set("big", thing(2));
    }
    // Runs the source as the script "script.orr" and returns what it displayed.
    std::string run(std::string_view source) {
        console_.clear();
        interpreter_.run(shell::lang::parse(source, u"script.orr"), u"script.orr", u"script");
        return console_.output();
    }
    // Runs a program already parsed, as "shared.orr", and returns what it displayed.
    std::string runParsed(shell::eval::Interpreter& interpreter, const shell::lang::Program& program) {
        console_.clear();
        interpreter.run(program, u"shared.orr", u"");
        return console_.output();
    }
    console::ConsoleCapture console_;
    shell::eval::Interpreter interpreter_;
};

}  // namespace

TEST_F(InterpreterTest, CallsRequestTheOutputsTheirPlaceNeeds) {
    static const std::pair<const char*, int> cases[] = {
        {"probeOutputs", 0},
        {"probeOutputs now", 0},
        {"x = probeOutputs;", 1},
        {"y = probeOutputs() + 1;", 1},
        {"z = {probeOutputs};", 1},
        {"[a, b] = probeOutputs;", 2},
        {"[a, ~, c] = probeOutputs;", 3},
        {"s.f = probeOutputs;", 1},
    };
    for (const auto& [source, requested] : cases) {
        SCOPED_TRACE(source);
        lastRequested = -1;
        run(source);
        EXPECT_EQ(lastRequested, requested);
    }
}

TEST_F(InterpreterTest, ShowsWhatEachStatementGives) {
    static const std::pair<const char*, const char*> cases[] = {
        // a bare call shows ans only when the built-in filled its first output
        {"probeOutputs", "ans = 1\n"},
        {"ans = 7; probeNothing, ans", "ans = 7\n"},
        {"[a, ~, c] = probeOutputs", "a = 1\nc = 3\n"},
        // the less common statement forms
        {"[a b] = probeOutputs", "a = 1\nb = 2\n"},
        {"for (k = [1 2]), end, k", "k = 2\n"},
        {"try\n  [1 2] + [1 2 3];\ncatch probeOutputs(1)\nend", "ans = 1\n"},
        {"function r = f\n  r = 1;\n  return\n  r = 2;\nend\nx = f()", "x = 1\n"},
        // objects
        {"small == same", "ans = 1\n"},
        {"small == big", "ans = 0\n"},
        {"big.size", "ans = 2\n"},
        {"big", "big =\n  ShellTestThing with properties:\n    size: 2\n"},
        {"big.grow(5)", "ans = 7\n"},
        {"grow(big, 1)", "ans = 3\n"},
        {"x = shelltest.inner.twice(4)", "x = 8\n"},
    };
    for (const auto& [source, output] : cases) {
        SCOPED_TRACE(source);
        EXPECT_EQ(run(source), output);
    }
}

TEST_F(InterpreterTest, RefusesWhatObjectsDoNotOffer) {
    static const std::pair<const char*, const char*> cases[] = {
        {"small ~= same", "ORRERY:shell:unsupportedOperation"},
        {"big.size = 3;", "ORRERY:ocos:readOnlyProperty"},
        {"shelltest.inner.missing(4)", "ORRERY:undefinedFunction"},
        {"shelltest.inner.twice('a', 2)", "ORRERY:tooManyInputs"},
    };
    for (const auto& [source, identifier] : cases) {
        SCOPED_TRACE(source);
        EXPECT_EQ(userErrorOf([&, text = source] { run(text); }).identifier(), identifier);
    }
    EXPECT_EQ(run("big.size"), "ans = 2\n") << "the refused write changed nothing";
}

// The other errors of the interpreter are shown by the interpreter_errors script.
TEST_F(InterpreterTest, MissingOutputsOfBuiltinsAreErrors) {
    EXPECT_QEXCEPTION(run("x = probeNothing;"), "ORRERY:shell:noOutput",
                      "The function 'probeNothing' returns no value.");
    EXPECT_QEXCEPTION(run("[a, b, c, d] = probeOutputs;"), "ORRERY:shell:outputNotSet",
                      "The output '4' of 'probeOutputs' was not set.");
}

TEST_F(InterpreterTest, EndlessRecursionIsAnError) {
    // On the session's stack the call limit ends it; sanitizer builds have a
    // smaller stack and larger frames, so the stack guard ends it first there.
#ifdef ORRERY_ADDRESS_SANITIZER
    const std::string expected = "ORRERY:shell:tooDeepToRun";
#else
    const std::string expected = "ORRERY:shell:recursionLimit";
#endif
    std::string identifier;
    shell::startup::runOnLargeStack([&] {
        identifier = userErrorOf([&] { run("function f(n)\n  f(n + 1);\nend\nf(1);"); }).identifier();
        return 0;
    });
    EXPECT_EQ(identifier, expected);
    EXPECT_TRUE(interp::currentFrames().empty());
}

TEST_F(InterpreterTest, LongOperatorChainsAreNoNesting) {
    std::string chain = "x = 1";
    for (int i = 0; i < 10000; ++i) chain += " - 1 + 1";
    EXPECT_EQ(run(chain + ", y = false && undefinedName || true"), "x = 1\ny = 1\n");
}

TEST_F(InterpreterTest, NestingTooDeepForTheStackIsAnError) {
    const std::string sum = "f(n - 1)" + std::string(390, '\'');
    const std::string program =
        "function r = f(n)\n  if n > 0\n    r = " + sum + ";\n  else\n    r = 0;\n  end\nend\nf(127);";
    EXPECT_EQ(userErrorOf([&] { run(program); }).identifier(), "ORRERY:shell:tooDeepToRun");
    EXPECT_TRUE(interp::currentFrames().empty());
}

// Each name node remembers its variable's slot in the layout it last ran in:
// recursive calls share one layout but never one another's values, a node run
// in another interpreter's workspace (another layout) finds that workspace's
// own slot, a cleared variable is no variable, and a function's outputs are
// moved out only once each.
TEST_F(InterpreterTest, VariablesKeepTheirSlotsApart) {
    static const std::pair<const char*, const char*> cases[] = {
        {"function r = depth(n)\n  own = n;\n  if n > 0\n    r = own + depth(n - 1);\n  else\n    r = own;\n"
         "  end\nend\nx = depth(4)",
         "x = 10\n"},
        {"function [a, b] = pair()\n  a = 3;\n  b = a;\nend\n[p, q] = pair()", "p = 3\nq = 3\n"},
        {"zeros = 7; a = zeros, clear zeros; b = zeros(1, 2)", "a = 7\nb =\n    0   0\n"},
    };
    for (const auto& [source, expected] : cases) {
        SCOPED_TRACE(source);
        EXPECT_EQ(run(source), expected);
    }

    const auto program = shell::lang::parse("x = y + 1", u"shared.orr");
    shell::eval::Interpreter other;
    other.baseWorkspace().set("unrelated", ValueArray::scalar(0));
    other.baseWorkspace().set("x", ValueArray::scalar(0));
    other.baseWorkspace().set("y", ValueArray::scalar(10));
    interpreter_.baseWorkspace().set("y", ValueArray::scalar(1));
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(runParsed(interpreter_, program), "x = 2\n");
        EXPECT_EQ(runParsed(other, program), "x = 11\n");
    }
    EXPECT_EQ(other.baseWorkspace().find("unrelated")->realAt(0), 0);
}

// A call site remembers what its name was found to be only while the script
// functions stay as they were: the same call site runs a function defined since,
// and a program shared with another interpreter runs that interpreter's own.
TEST_F(InterpreterTest, CallSitesRunTheFunctionsDefinedSinceTheirLastCall) {
    EXPECT_EQ(run("function y = viaProbe()\n  y = probeOutputs();\nend\na = viaProbe()"), "a = 1\n");
    EXPECT_EQ(run("function y = probeOutputs()\n  y = 42;\nend\nb = viaProbe()"), "b = 42\n");
    EXPECT_EQ(run("function y = probeOutputs()\n  y = 43;\nend\nc = viaProbe()"), "c = 43\n");

    const auto program = shell::lang::parse("d = probeOutputs()", u"shared.orr");
    shell::eval::Interpreter other;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(runParsed(interpreter_, program), "d = 43\n");
        EXPECT_EQ(runParsed(other, program), "d = 1\n");
    }
}
