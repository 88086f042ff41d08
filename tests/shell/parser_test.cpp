// The parser: function definitions, syntax errors, nesting limits and
// unfinished input. The trees it builds are proved by evaluating them, in
// interpreter_test.cpp and the operators and parsing script tests.
#include "shell/lang/parser.hpp"

#include "tests/support/expect_error.hpp"

#include <string>

using namespace orrery;
using namespace orrery::shell::lang;

namespace {

std::string repeat(std::string_view piece, int times) {
    std::string out;
    for (int i = 0; i < times; ++i) out += piece;
    return out;
}

}  // namespace

TEST(Parser, CollectsFunctionDefinitionsWithOrWithoutEnd) {
    const Program program = parse(
        "y = twice(2)\n"
        "function r = twice(x)\n  r = 2 * x;\nend\n"
        "function [a, b] = pair(~, q)\n  a = q; b = q;\n"
        "function noEnd\n  disp(1)\n",
        u"test");
    EXPECT_EQ(program.statements.size(), 1u);
    ASSERT_EQ(program.functions.size(), 3u);
    const FunctionDef& pair = *program.functions.at("pair");
    EXPECT_EQ(pair.inputs, (std::vector<std::string>{"~", "q"}));
    EXPECT_EQ(pair.outputs, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(pair.pos.line, 5u);
    EXPECT_EQ(pair.body.size(), 2u);
    EXPECT_EQ(program.functions.at("twice")->body.size(), 1u);
    EXPECT_EQ(program.functions.at("noEnd")->body.size(), 1u);
}

TEST(Parser, RefusesMalformedStatements) {
    static const std::pair<const char*, const char*> cases[] = {
        {"x = 1 +", "ORRERY:shell:unexpectedToken"},
        {"x = [1 2", "ORRERY:shell:unexpectedToken"},
        {"if x", "ORRERY:shell:unexpectedToken"},
        {"x = end", "ORRERY:shell:unexpectedToken"},
        {"end", "ORRERY:shell:unexpectedToken"},
        {"s.1", "ORRERY:shell:unexpectedToken"},
        {"@f", "ORRERY:shell:unexpectedToken"},
        {"1 = x", "ORRERY:shell:badAssignmentTarget"},
        {"[a, 1] = f", "ORRERY:shell:badAssignmentTarget"},
        {"if 1, continue, end", "ORRERY:shell:outsideLoop"},
        {"if 1\nfunction f\nend\nend", "ORRERY:shell:misplacedFunction"},
        {"function f\nend\nfunction f\nend", "ORRERY:shell:duplicateFunction"},
    };
    for (const auto& [source, identifier] : cases) {
        SCOPED_TRACE(source);
        EXPECT_MSGID(parse(source, u"test"), identifier);
    }
    EXPECT_MSGID_TEXT(parse("x = [1 2 3 4) + 1", u"demo.orr"), "ORRERY:shell:unexpectedToken",
                      "Syntax error in demo.orr at line 1, column 13: expected ',', ';' or ']', but found ')'.");
}

TEST(Parser, RefusesNestingDeeperThanItsLimits) {
    for (const std::string& source :
         {"x = " + repeat("(", 5000) + "1" + repeat(")", 5000), repeat("if 1\n", 500) + repeat("end\n", 500),
          "x = 1" + repeat("'", 500), "x = [" + repeat("[", 100) + "1" + repeat("]", 101),
          "s" + repeat(".f", 20000) + " = 1", "x = " + repeat("-", 20000) + "1"}) {
        SCOPED_TRACE(source.substr(0, 40));
        EXPECT_MSGID(parse(source, u"test"), "ORRERY:shell:tooDeep");
    }
    // wide is fine, and so are long operator chains: only depth is limited
    EXPECT_NO_THROW(parse("x = [1" + repeat(", 1", 20000) + "]", u"test"));
    EXPECT_NO_THROW(parse("x = 1" + repeat(" + 1", 20000), u"test"));
    EXPECT_NO_THROW(parse("x = " + repeat("[", 100) + "1" + repeat("]", 100), u"test"));
}

TEST(Parser, KnowsWhenInputIsUnfinished) {
    static const std::pair<const char*, bool> cases[] = {
        {"for k = 1:3", true}, {"if x\n  y = 1", true}, {"x = [1 2", true},
        {"%{\ncomment", true}, {"x = 1 + ...\n", true}, {"x = 1", false},
        {"x = )", false},      {"x = 'open", false},    {"", false},
    };
    for (const auto& [source, unfinished] : cases) {
        SCOPED_TRACE(source);
        EXPECT_EQ(needsMoreInput(source), unfinished);
    }
}
