// The parser: precedence and associativity, postfix chains, statements and
// function definitions, syntax errors, nesting limits and unfinished input.
#include "shell/lang/parser.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/text/text.hpp>

#include <sstream>
#include <string>

using namespace orrery;
using namespace orrery::shell::lang;

namespace {

std::string show(const Expr& e);

std::string opText(Op op) {
    static const char* const names[] = {"+", "-", "~", "*", "/", "\\", "^", ".*", "./", ".\\", ".^",
                                        "==", "~=", "<", "<=", ">", ">=", "&", "|", "&&", "||"};
    return names[static_cast<int>(op)];
}

std::string list(const std::vector<ExprPtr>& items, const char* separator) {
    std::string out;
    for (const auto& item : items) out += (out.empty() ? "" : separator) + show(*item);
    return out;
}

std::string showSuffix(const Suffix& s) {
    switch (s.kind) {
    case SuffixKind::Paren: return "(" + list(s.args, ",") + ")";
    case SuffixKind::Brace: return "{" + list(s.args, ",") + "}";
    case SuffixKind::Field: return "." + s.field;
    case SuffixKind::DynamicField: return ".(" + show(*s.args[0]) + ")";
    }
    return "?";
}

std::string showRows(const Expr& e, const char* open, const char* close) {
    std::string out = open;
    for (std::size_t r = 0; r < e.rows.size(); ++r) out += (r == 0 ? "" : "; ") + list(e.rows[r], " ");
    return out + close;
}

// Operators in prefix form, everything else as written.
std::string show(const Expr& e) {
    switch (e.kind) {
    case ExprKind::Number: {
        std::ostringstream number;
        number << e.number;
        return number.str();
    }
    case ExprKind::CharText: return "'" + text::utf16ToUtf8(e.text) + "'";
    case ExprKind::StringText: return "\"" + text::utf16ToUtf8(e.text) + "\"";
    case ExprKind::Name: return e.name;
    case ExprKind::Colon: return ":";
    case ExprKind::EndIndex: return "end";
    case ExprKind::Unary: return "(" + opText(e.op) + " " + show(*e.operands[0]) + ")";
    case ExprKind::Binary: return "(" + opText(e.op) + " " + list(e.operands, " ") + ")";
    case ExprKind::Range: return "(: " + list(e.operands, " ") + ")";
    case ExprKind::Transpose: return std::string("(") + (e.op == Op::Power ? "'" : ".'") + " " + show(*e.operands[0]) + ")";
    case ExprKind::Postfix: {
        std::string out = show(*e.operands[0]);
        for (const auto& s : e.suffixes) out += showSuffix(s);
        return out;
    }
    case ExprKind::Matrix: return showRows(e, "[", "]");
    case ExprKind::CellArray: return showRows(e, "{", "}");
    }
    return "?";
}

std::string showTarget(const LValue& target) {
    if (target.ignored) return "~";
    std::string out = target.name;
    for (const auto& s : target.suffixes) out += showSuffix(s);
    return out;
}

std::string showBlock(const Block& block);

std::string showStmt(const Stmt& s) {
    const std::string end = s.printResult ? "" : ";";
    switch (s.kind) {
    case StmtKind::Expression: return show(*s.expr) + end;
    case StmtKind::Assign: return showTarget(s.targets[0]) + " = " + show(*s.expr) + end;
    case StmtKind::MultiAssign: {
        std::string out = "[";
        for (const auto& t : s.targets) out += (out.size() == 1 ? "" : " ") + showTarget(t);
        return out + "] = " + show(*s.expr) + end;
    }
    case StmtKind::Command: {
        std::string out = s.name;
        for (const auto& w : s.words) out += "<" + text::utf16ToUtf8(w) + ">";
        return out + end;
    }
    case StmtKind::If: {
        std::string out;
        for (const auto& c : s.clauses) out += (out.empty() ? "if " : " elseif ") + show(*c.test) + " " + showBlock(c.body);
        return out + (s.hasOtherwise ? " else " + showBlock(s.otherwise) : "");
    }
    case StmtKind::For: return "for " + s.name + " = " + show(*s.expr) + " " + showBlock(s.body);
    case StmtKind::While: return "while " + show(*s.expr) + " " + showBlock(s.body);
    case StmtKind::Switch: {
        std::string out = "switch " + show(*s.expr);
        for (const auto& c : s.clauses) out += " case " + show(*c.test) + " " + showBlock(c.body);
        return out + (s.hasOtherwise ? " otherwise " + showBlock(s.otherwise) : "");
    }
    case StmtKind::Try:
        return "try " + showBlock(s.body) + (s.hasOtherwise ? " catch " + s.name + " " + showBlock(s.otherwise) : "");
    case StmtKind::Break: return "break";
    case StmtKind::Continue: return "continue";
    case StmtKind::Return: return "return";
    }
    return "?";
}

std::string showBlock(const Block& block) {
    std::string out = "{";
    for (const auto& stmt : block) out += (out.size() == 1 ? "" : " | ") + showStmt(*stmt);
    return out + "}";
}

std::string parsed(std::string_view source) { return showBlock(parse(source, u"test").statements); }

struct ParseCase {
    const char* source;
    const char* tree;
};

}  // namespace

TEST(Parser, AppliesPrecedenceAndAssociativity) {
    static const ParseCase cases[] = {
        {"1 + 2 * 3", "{(+ 1 (* 2 3))}"},
        {"a - b - c", "{(- (- a b) c)}"},
        {"a / b * c", "{(* (/ a b) c)}"},
        {"-2 ^ 2", "{(- (^ 2 2))}"},
        {"2 ^ -1", "{(^ 2 (- 1))}"},
        {"2 ^ 3 ^ 2", "{(^ (^ 2 3) 2)}"},
        {"a .^ b'", "{(.^ a (' b))}"},
        {"1:2:10", "{(: 1 2 10)}"},
        {"1:n + 1", "{(: 1 (+ n 1))}"},
        {"a < b:c", "{(< a (: b c))}"},
        {"a == b & c | d", "{(| (& (== a b) c) d)}"},
        {"a || b && c", "{(|| a (&& b c))}"},
        {"~a == b", "{(== (~ a) b)}"},
        {"-a'", "{(- (' a))}"},
        {"(a + b) * c", "{(* (+ a b) c)}"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(parsed(c.source), c.tree);
    }
}

TEST(Parser, BuildsPostfixChainsAndBrackets) {
    static const ParseCase cases[] = {
        {"x(end, :)", "{x(end,:)}"},
        {"s.a(2).b{3}", "{s.a(2).b{3}}"},
        {"s.(name)", "{s.(name)}"},
        {"x(end - 1)'", "{(' x((- end 1)))}"},
        {"x.'", "{(.' x)}"},
        {"f()", "{f()}"},
        {"m([1 end])", "{m([1 end])}"},
        {"[1 2; 3 4]", "{[1 2; 3 4]}"},
        {"[1, 2, ; ; 3]", "{[1 2; 3]}"},
        {"{}", "{{}}"},
        {"{1, 'a'; \"s\", {}}", "{{1 'a'; \"s\" {}}}"},
        {"[ ]", "{[]}"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(parsed(c.source), c.tree);
    }
}

TEST(Parser, ParsesStatements) {
    static const ParseCase cases[] = {
        {"x = 1;", "{x = 1;}"},
        {"x = 1, y = 2", "{x = 1 | y = 2}"},
        {"[a, ~, c] = f(1)", "{[a ~ c] = f(1)}"},
        {"[a b] = f", "{[a b] = f}"},
        {"[a, b]", "{[a b]}"},
        {"x(2).f{3} = 4", "{x(2).f{3} = 4}"},
        {"disp hello;", "{disp<hello>;}"},
        {"if a, b, elseif c, d, else, e, end", "{if a {b} elseif c {d} else {e}}"},
        {"if a\n  b\nend", "{if a {b}}"},
        {"for k = 1:3, end", "{for k = (: 1 3) {}}"},
        {"for (k = v), break, end", "{for k = v {break}}"},
        {"while x, continue, end", "{while x {continue}}"},
        {"switch s, case 1, a, case {2, 3}, b, otherwise, c, end", "{switch s case 1 {a} case {2 3} {b} otherwise {c}}"},
        {"try, a, catch err, b, end", "{try {a} catch err {b}}"},
        {"try, a, catch, b, end", "{try {a} catch  {b}}"},
        {"try\n a\ncatch disp(1)\nend", "{try {a} catch  {disp(1)}}"},
        {"return", "{return}"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(parsed(c.source), c.tree);
    }
}

TEST(Parser, CollectsFunctionDefinitions) {
    const Program program = parse(
        "y = twice(2)\n"
        "function r = twice(x)\n  r = 2 * x;\nend\n"
        "function [a, b] = pair(~, q)\n  a = q; b = q;\n"
        "function noEnd\n  disp(1)\n",
        u"test");
    EXPECT_EQ(showBlock(program.statements), "{y = twice(2)}");
    ASSERT_EQ(program.functions.size(), 3u);
    const FunctionDef& pair = *program.functions.at("pair");
    EXPECT_EQ(pair.inputs, (std::vector<std::string>{"~", "q"}));
    EXPECT_EQ(pair.outputs, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(pair.pos.line, 5u);
    EXPECT_EQ(showBlock(program.functions.at("twice")->body), "{r = (* 2 x);}");
    EXPECT_EQ(showBlock(program.functions.at("noEnd")->body), "{disp(1)}");
}

TEST(Parser, RefusesMalformedStatements) {
    static const struct {
        const char* source;
        const char* identifier;
    } cases[] = {
        {"x = (1 + 2", "ORRERY:shell:unexpectedToken"},
        {"x = 1 +", "ORRERY:shell:unexpectedToken"},
        {"x = [1 2", "ORRERY:shell:unexpectedToken"},
        {"if x", "ORRERY:shell:unexpectedToken"},
        {"x = end", "ORRERY:shell:unexpectedToken"},
        {"x = = 1", "ORRERY:shell:unexpectedToken"},
        {"end", "ORRERY:shell:unexpectedToken"},
        {"s.1", "ORRERY:shell:unexpectedToken"},
        {"@f", "ORRERY:shell:unexpectedToken"},
        {"1 = x", "ORRERY:shell:badAssignmentTarget"},
        {"a + b = 1", "ORRERY:shell:badAssignmentTarget"},
        {"[a, 1] = f", "ORRERY:shell:badAssignmentTarget"},
        {"break", "ORRERY:shell:outsideLoop"},
        {"if 1, continue, end", "ORRERY:shell:outsideLoop"},
        {"if 1\nfunction f\nend\nend", "ORRERY:shell:misplacedFunction"},
        {"function f\nend\nfunction f\nend", "ORRERY:shell:duplicateFunction"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_MSGID(parse(c.source, u"test"), c.identifier);
    }
}

TEST(Parser, SyntaxErrorsSayWhereAndWhat) {
    EXPECT_MSGID_TEXT(parse("a = 1;\nb = (2 + 3", u"demo.orr"), "ORRERY:shell:unexpectedToken",
                      "Syntax error in demo.orr at line 2, column 11: expected ')', but found end of input.");
    EXPECT_MSGID_TEXT(parse("x = [1 2 3 4) + 1", u"demo.orr"), "ORRERY:shell:unexpectedToken",
                      "Syntax error in demo.orr at line 1, column 13: expected ',', ';' or ']', but found ')'.");
}

TEST(Parser, RefusesNestingDeeperThanItsLimits) {
    const std::string deepParens = "x = " + std::string(5000, '(') + "1" + std::string(5000, ')');
    const std::string deepBlocks = [] {
        std::string s;
        for (int i = 0; i < 500; ++i) s += "if 1\n";
        for (int i = 0; i < 500; ++i) s += "end\n";
        return s;
    }();
    std::string longChain = "x = 1";
    for (int i = 0; i < 20000; ++i) longChain += " + 1";
    std::string longFields = "s";
    for (int i = 0; i < 20000; ++i) longFields += ".f";
    for (const std::string& source : {deepParens, deepBlocks, longChain, longFields + " = 1",
                                      "x = " + std::string(20000, '-') + "1"}) {
        SCOPED_TRACE(source.substr(0, 40));
        EXPECT_MSGID(parse(source, u"test"), "ORRERY:shell:tooDeep");
    }
    // wide is fine: only depth is limited
    std::string wide = "x = [1";
    for (int i = 0; i < 20000; ++i) wide += ", 1";
    EXPECT_NO_THROW(parse(wide + "]", u"test"));
}

TEST(Parser, KnowsWhenInputIsUnfinished) {
    static const struct {
        const char* source;
        bool unfinished;
    } cases[] = {
        {"for k = 1:3", true},     {"if x\n  y = 1", true},  {"x = [1 2", true},
        {"%{\ncomment", true},     {"x = 1 + ...\n", true},  {"x = 1", false},
        {"x = )", false},          {"x = 'open", false},     {"", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(needsMoreInput(c.source), c.unfinished);
    }
}
