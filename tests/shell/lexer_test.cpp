// The lexer: spacing inside brackets, transpose or quote, command syntax,
// comments and continuation, numbers, and its syntax errors.
#include "shell/lang/lexer.hpp"

#include "tests/support/decimal_comma_locale.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/text/text.hpp>

#include <limits>
#include <string>
#include <vector>

using namespace orrery;
using shell::lang::Token;
using shell::lang::tokenize;
using shell::lang::TokenKind;

namespace {

// One word per token: names and punctuation as written, numbers as #value,
// texts quoted, command words in <>, transposes as 'T, line breaks as NL.
std::string render(std::string_view source) {
    std::string out;
    for (const Token& token : tokenize(source, u"test")) {
        const std::string value = text::utf16ToUtf8(token.textValue);
        std::string word = token.text;
        if (token.kind == TokenKind::EndOfInput) continue;
        if (token.kind == TokenKind::Newline) word = "NL";
        if (token.kind == TokenKind::Number) word = "#" + token.text;
        if (token.kind == TokenKind::CharText) word = "'" + value + "'";
        if (token.kind == TokenKind::StringText) word = "\"" + value + "\"";
        if (token.kind == TokenKind::CommandWord) word = "<" + value + ">";
        if (token.kind == TokenKind::Transpose) word = "'T";
        if (token.kind == TokenKind::Comma) word = ",";
        if (token.kind == TokenKind::Semicolon) word = ";";
        out += (out.empty() ? "" : " ") + word;
    }
    return out;
}

// A source and what it must give: tokens or an error identifier.
struct LexCase {
    const char* source;
    const char* expected;
};

}  // namespace

TEST(Lexer, SplitsSourceIntoTokens) {
    static const LexCase cases[] = {
        // blanks inside brackets separate elements unless they surround an operator
        {"[f (1)]", "[ f , ( #1 ) ]"},
        {"[~a b]", "[ ~ a , b ]"},
        {"[1\n\n2]", "[ #1 ; #2 ]"},
        // a quote after a value transposes, elsewhere it opens a text
        {"a''", "a 'T 'T"},
        {"s = \"say \"\"hi\"\"\"", "s = \"say \"hi\"\""},
        // command syntax only after a name that starts a statement
        {"x == 1", "x == #1"},
        {"if x disp y", "if x disp y"},
        {"else disp y", "else disp <y>"},
        // a block comment opens only on a line of its own
        {"  %{ not a block comment\nq", "NL q"},
        // dots that belong to the operator after a number
        {"1.*2", "#1 .* #2"},
        {"2.^x", "#2 .^ x"},
        {"1./[2 4]", "#1 ./ [ #2 , #4 ]"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_EQ(render(c.source), c.expected);
    }
}

TEST(Lexer, RefusesMalformedText) {
    static const LexCase cases[] = {
        {"x = 'abc", "ORRERY:shell:unterminatedText"},
        {"x = \"abc\ny\"", "ORRERY:shell:unterminatedText"},
        {"disp 'abc", "ORRERY:shell:unterminatedText"},
        {"x = 1x", "ORRERY:shell:badNumber"},
        {"x = 1e", "ORRERY:shell:badNumber"},
        {"x = $", "ORRERY:shell:badCharacter"},
        {"%{\nnever closed", "ORRERY:shell:unterminatedComment"},
        {"x = 'a\xFF'", "ORRERY:shell:badText"},
        {"disp a\xC3", "ORRERY:shell:badText"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.source);
        EXPECT_MSGID(tokenize(c.source, u"test"), c.expected);
    }
    // The text names the source, line and column, and shows a whole UTF-8 character
    // or else the offending byte.
    EXPECT_MSGID_TEXT(tokenize("x = \xC3\xA9", u"demo.orr"), "ORRERY:shell:badCharacter",
                      "Syntax error in demo.orr at line 1, column 5: the character '\xC3\xA9' is not allowed here.");
    EXPECT_MSGID_TEXT(tokenize("x = 1;\ny = \"a\xE9\"", u"demo.orr"), "ORRERY:shell:badText",
                      "Syntax error in demo.orr at line 2, column 5: the text starting here is not valid UTF-8.");
    const std::pair<const char*, const char*> shown[] = {
        {"x = \xF0\x9F\x98\x80", "the character '\xF0\x9F\x98\x80' is"},
        {"x = \xC3", "the character byte 0xC3 is"},
        {"x = \x01", "the character byte 0x01 is"},
    };
    for (const auto& [source, text] : shown) {
        SCOPED_TRACE(source);
        try {
            tokenize(source, u"demo.orr");
            ADD_FAILURE() << "nothing raised";
        } catch (const orrery::except::IMsgIDException& failure) {
            EXPECT_NE(std::string(failure.what()).find(text), std::string::npos) << failure.what();
        }
    }
}

TEST(Lexer, ReadsNumbersTheSameUnderADecimalCommaLocale) {
    ORRERY_USE_DECIMAL_COMMA_LOCALE();
    const auto tokens = tokenize("x = [1.5 .25 2e-1 1e400]", u"test");
    std::vector<double> numbers;
    for (const Token& token : tokens)
        if (token.kind == TokenKind::Number) numbers.push_back(token.number);
    EXPECT_EQ(numbers, (std::vector<double>{1.5, 0.25, 0.2, std::numeric_limits<double>::infinity()}));
}
