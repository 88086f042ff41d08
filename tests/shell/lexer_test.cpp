// The lexer: spacing inside brackets, transpose or quote, command syntax,
// comments and continuation, numbers, and its syntax errors.
#include "shell/lang/lexer.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/text/text.hpp>

#include <string>

using namespace orrery;
using shell::lang::Token;
using shell::lang::TokenKind;
using shell::lang::tokenize;

namespace {

// One word per token: names and punctuation as written, numbers as #value,
// texts quoted, command words in <>, transposes as 'T, line breaks as NL.
std::string render(std::string_view source) {
    std::string out;
    for (const Token& token : tokenize(source, u"test")) {
        std::string word;
        switch (token.kind) {
        case TokenKind::EndOfInput: continue;
        case TokenKind::Newline: word = "NL"; break;
        case TokenKind::Number: word = "#" + token.text; break;
        case TokenKind::CharText: word = "'" + text::utf16ToUtf8(token.textValue) + "'"; break;
        case TokenKind::StringText: word = "\"" + text::utf16ToUtf8(token.textValue) + "\""; break;
        case TokenKind::CommandWord: word = "<" + text::utf16ToUtf8(token.textValue) + ">"; break;
        case TokenKind::Transpose: word = "'T"; break;
        case TokenKind::Comma: word = ","; break;
        case TokenKind::Semicolon: word = ";"; break;
        default: word = token.text;
        }
        out += (out.empty() ? "" : " ") + word;
    }
    return out;
}

struct LexCase {
    const char* source;
    const char* tokens;
};

}  // namespace

TEST(Lexer, SplitsSourceIntoTokens) {
    static const LexCase cases[] = {
        // blanks inside brackets separate elements unless they surround an operator
        {"[1 -2]", "[ #1 , - #2 ]"},
        {"[1 - 2]", "[ #1 - #2 ]"},
        {"[1 -2 + 3]", "[ #1 , - #2 + #3 ]"},
        {"[f (1)]", "[ f , ( #1 ) ]"},
        {"[~a b]", "[ ~ a , b ]"},
        {"{1 'x'}", "{ #1 , 'x' }"},
        {"[1, 2\n3]", "[ #1 , #2 ; #3 ]"},
        {"[1\n\n2]", "[ #1 ; #2 ]"},
        {"f(1, 2)", "f ( #1 , #2 )"},
        // a quote after a value transposes, after a blank in brackets it opens a text
        {"a'", "a 'T"},
        {"a''", "a 'T 'T"},
        {"x.'", "x .'"},
        {"[a' b']", "[ a 'T , b 'T ]"},
        {"[a 'b']", "[ a , 'b' ]"},
        {"x = 'it''s'", "x = 'it's'"},
        {"s = \"say \"\"hi\"\"\"", "s = \"say \"hi\"\""},
        // command syntax after a name that starts a statement
        {"disp hello world", "disp <hello> <world>"},
        {"warning off all;", "warning <off> <all> ;"},
        {"disp 'a b', x", "disp <a b> , x"},
        {"format -long", "format <-long>"},
        {"x = 1", "x = #1"},
        {"x - 1", "x - #1"},
        {"x -1", "x - #1"},
        {"x == 1", "x == #1"},
        {"disp (1)", "disp ( #1 )"},
        {"if x disp y", "if x disp y"},
        {"else disp y", "else disp <y>"},
        // comments, block comments and continuation
        {"a % note\nb", "a NL b"},
        {"%{\nskipped\n%}\ny", "NL y"},
        {"%{\n%{\ninner\n%}\nstill skipped\n%}\nz", "NL z"},
        {"  %{ not a block comment\nq", "NL q"},
        {"x = 1 + ...  ignored\n2", "x = #1 + #2"},
        // numbers, and dots that belong to the operator after them
        {".5e1 1e-2 3. 4E+1", "#.5e1 #1e-2 #3. #4E+1"},
        {"1.*2", "#1 .* #2"},
        {"2.^x", "#2 .^ x"},
        {"1./[2 4]", "#1 ./ [ #2 , #4 ]"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(render(c.source), c.tokens);
    }
}

TEST(Lexer, RecordsLineAndColumnOfTokens) {
    const auto tokens = tokenize("a = 1;\n  bb", u"test");
    ASSERT_GE(tokens.size(), 6u);
    EXPECT_EQ(tokens[0].pos.line, 1u);
    EXPECT_EQ(tokens[2].pos.column, 5u);
    EXPECT_EQ(tokens[5].text, "bb");
    EXPECT_EQ(tokens[5].pos.line, 2u);
    EXPECT_EQ(tokens[5].pos.column, 3u);
}

TEST(Lexer, RefusesMalformedText) {
    static const struct {
        const char* source;
        const char* identifier;
    } cases[] = {
        {"x = 'abc", "ORRERY:shell:unterminatedText"},
        {"x = \"abc\ny\"", "ORRERY:shell:unterminatedText"},
        {"disp 'abc", "ORRERY:shell:unterminatedText"},
        {"x = 1x", "ORRERY:shell:badNumber"},
        {"x = 2i", "ORRERY:shell:badNumber"},
        {"x = 1e", "ORRERY:shell:badNumber"},
        {"x = $", "ORRERY:shell:badCharacter"},
        {"x = \x01", "ORRERY:shell:badCharacter"},
        {"x = \xC3\xA9", "ORRERY:shell:badCharacter"},
        {"%{\nnever closed", "ORRERY:shell:unterminatedComment"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_MSGID(tokenize(c.source, u"test"), c.identifier);
    }
}

TEST(Lexer, ErrorsNameSourceLineAndColumn) {
    EXPECT_MSGID_TEXT(tokenize("a = 1;\nb = 'open", u"demo.orr"), "ORRERY:shell:unterminatedText",
                      "Syntax error in demo.orr at line 2, column 5: the text is not closed by a matching quote on "
                      "the same line.");
    EXPECT_MSGID_TEXT(tokenize("x = \xC3\xA9", u"demo.orr"), "ORRERY:shell:badCharacter",
                      "Syntax error in demo.orr at line 1, column 5: the character '\xC3\xA9' is not allowed here.");
}
