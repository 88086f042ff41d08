// The evaluator: how many outputs each kind of call requests, what a
// statement displays, call-stack frames of script functions, and the errors
// that leave a run.
#include "shell/eval/interpreter.hpp"

#include "shell/lang/parser.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/text/text.hpp>

#include <sstream>

using namespace orrery;
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
std::vector<interp::StackEntry> seenFrames;
void probeStack(std::int32_t, value::ValueArrayPtr*, std::int32_t, const ValueArray* const*) {
    seenFrames = interp::currentFrames();
}

class InterpreterTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        interp::registerFunction("probeOutputs", probeOutputs);
        interp::registerFunction("probeNothing", probeNothing);
        interp::registerFunction("probeStack", probeStack);
    }
    // Runs the source as the script "script.orr" and returns what it displayed.
    std::string run(std::string_view source) {
        output_.str("");
        interpreter_.run(shell::lang::parse(source, u"script.orr"), u"script.orr", u"script");
        return output_.str();
    }
    std::ostringstream output_;
    shell::eval::Interpreter interpreter_{output_};
};

}  // namespace

TEST_F(InterpreterTest, CallsRequestTheOutputsTheirPlaceNeeds) {
    static const struct {
        const char* source;
        int requested;
    } cases[] = {
        {"probeOutputs", 0},        {"probeOutputs;", 0},         {"probeOutputs now", 0},
        {"x = probeOutputs;", 1},   {"y = probeOutputs() + 1;", 1}, {"z = {probeOutputs};", 1},
        {"[a, b] = probeOutputs;", 2}, {"[a, ~, c] = probeOutputs;", 3}, {"s.f = probeOutputs;", 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        lastRequested = -1;
        run(c.source);
        EXPECT_EQ(lastRequested, c.requested);
    }
}

TEST_F(InterpreterTest, BareStatementShowsAnsOnlyWhenSlotOneIsFilled) {
    EXPECT_EQ(run("probeOutputs"), "ans = 1\n");
    EXPECT_EQ(run("probeOutputs;"), "");
    EXPECT_EQ(run("ans = 7; probeNothing"), "");
    EXPECT_EQ(interpreter_.baseWorkspace().find("ans")->realAt(0), 7);
    EXPECT_EQ(run("[a, ~, c] = probeOutputs"), "a = 1\nc = 3\n");
    EXPECT_EQ(run("q = 5; q"), "q = 5\n");
}

TEST_F(InterpreterTest, MissingOutputsAreErrors) {
    EXPECT_QEXCEPTION(run("x = probeNothing;"), "ORRERY:shell:noOutput", "The function 'probeNothing' returns no value.");
    EXPECT_QEXCEPTION(run("[a, b, c, d] = probeOutputs;"), "ORRERY:shell:outputNotSet",
                      "The output '4' of 'probeOutputs' was not set.");
    EXPECT_QEXCEPTION(run("function f\nend\nx = f();"), "ORRERY:tooManyOutputs", "Too many output arguments.");
    EXPECT_QEXCEPTION(run("function y = g\nend\nx = g();"), "ORRERY:shell:outputNotSet",
                      "The output 'y' of 'g' was not set.");
}

TEST_F(InterpreterTest, ScriptFunctionsRunInFramesWithTheCurrentLine) {
    run("function outer()\n"
        "  x = 1;\n"
        "  inner();\n"
        "end\n"
        "function inner()\n"
        "  probeStack();\n"
        "end\n"
        "\n"
        "outer();\n");
    ASSERT_EQ(seenFrames.size(), 3u);
    const struct {
        const char16_t* name;
        std::uint32_t line;
    } expected[] = {{u"inner", 6}, {u"outer", 3}, {u"script", 9}};
    for (std::size_t i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(seenFrames[i].name, expected[i].name);
        EXPECT_EQ(seenFrames[i].line, expected[i].line);
        EXPECT_EQ(seenFrames[i].file, u"script.orr");
    }
    EXPECT_TRUE(interp::currentFrames().empty());
}

TEST_F(InterpreterTest, UncaughtErrorsCarryTheStackWhereTheyHappened) {
    try {
        run("function f()\n  [1 2] + [1 2 3];\nend\nf();\n");
        ADD_FAILURE() << "no error";
    } catch (const except::QException& error) {
        EXPECT_EQ(error.identifier(), "ORRERY:shell:sizeMismatch");
        ASSERT_EQ(error.stack().numel(), 2u);
        EXPECT_EQ(error.stack().field(0, "name")->textUtf8(), "f");
        EXPECT_EQ(error.stack().field(0, "line")->realAt(0), 2);
        EXPECT_EQ(error.stack().field(1, "name")->textUtf8(), "script");
    }
    EXPECT_TRUE(interp::currentFrames().empty());
}

TEST_F(InterpreterTest, CaughtErrorsBecomeTheLastError) {
    run("try, x = [1 2]; x(3), catch err, end");
    const auto last = except::QException::LastError::Get();
    EXPECT_EQ(last.identifier, "ORRERY:value:indexOutOfRange");
    ASSERT_TRUE(last.stack.has_value());
    EXPECT_EQ(last.stack->numel(), 1u);
    EXPECT_EQ(run("err.identifier"), "ans = 'ORRERY:value:indexOutOfRange'\n");
}

TEST_F(InterpreterTest, EndlessRecursionIsAnError) {
    EXPECT_QEXCEPTION(run("function f(n)\n  f(n + 1);\nend\nf(1);"), "ORRERY:shell:recursionLimit",
                      "Function calls nest more than 128 deep; the recursion may never end.");
    EXPECT_TRUE(interp::currentFrames().empty());
}

TEST_F(InterpreterTest, NestingTooDeepForTheStackIsAnError) {
    std::string sum = "f(n - 1)";
    for (int i = 0; i < 390; ++i) sum += " + 1";
    const std::string program = "function r = f(n)\n  if n > 0\n    r = " + sum + ";\n  else\n    r = 0;\n  end\nend\nf(127);";
    try {
        run(program);
        ADD_FAILURE() << "no error";
    } catch (const except::QException& error) {
        EXPECT_EQ(error.identifier(), "ORRERY:shell:tooDeepToRun");
    }
    EXPECT_TRUE(interp::currentFrames().empty());
}

TEST_F(InterpreterTest, EndInCallArgumentsIsAnError) {
    EXPECT_QEXCEPTION(run("probeOutputs(end)"), "ORRERY:shell:endInCall",
                      "'end' can only be used in an index of a variable, not in the arguments of 'probeOutputs'.");
}
