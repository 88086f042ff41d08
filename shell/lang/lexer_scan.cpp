// The lexer's scanners: numbers, quoted texts, comments and command words.
#include "shell/lang/lexer_state.hpp"
#include "shell/lang/syntax_messages.hpp"

#include <orrery/except/host_messages.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/except/msg_id_exception.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/identifiers.hpp>
#include <orrery/text/number_text.hpp>
#include <orrery/text/text.hpp>

#include <cstdio>

namespace orrery::shell::lang::detail {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// Operators that may follow a number directly after its digits ("1.*x", "2.^k").
bool startsDotOperator(char c) { return c == '*' || c == '/' || c == '\\' || c == '^' || c == '\''; }

// A line holding only the marker (and blanks).
bool lineIs(std::string_view line, std::string_view marker) {
    const auto first = line.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return false;
    const auto last = line.find_last_not_of(" \t\r");
    return line.substr(first, last - first + 1) == marker;
}

constexpr std::string_view kOperatorChars = "+-*/\\^<>=&|~!:.@";

std::size_t operatorLength(std::string_view rest) {
    static constexpr std::string_view pairs[] = {"==", "~=", "!=", "<=",  ">=", "&&",
                                                 "||", ".*", "./", ".\\", ".^", ".'"};
    for (auto pair : pairs)
        if (rest.substr(0, 2) == pair) return 2;
    return 1;
}

}  // namespace

void Lexer::lexNumber() {
    const SourcePos start = here();
    std::size_t length = 0;
    while (isDigit(peek(length))) ++length;
    if (peek(length) == '.' && !startsDotOperator(peek(length + 1))) {
        ++length;
        while (isDigit(peek(length))) ++length;
    }
    if (peek(length) == 'e' || peek(length) == 'E') {
        std::size_t exponent = length + 1;
        if (peek(exponent) == '+' || peek(exponent) == '-') ++exponent;
        if (isDigit(peek(exponent))) {
            while (isDigit(peek(exponent))) ++exponent;
            length = exponent;
        }
    }
    std::size_t end = length;
    while (isNamePart(peek(end)) || (peek(end) == '.' && isDigit(peek(end + 1)))) ++end;
    const std::string spelling(src_.substr(pos_, end));
    if (end != length)
        except::throwMessage(BadNumber(sourceName_, start.line, start.column, text::asciiToUtf16(spelling)));
    Token& token = emit(TokenKind::Number, start);
    token.text = spelling;
    const auto number = text::parseDouble(spelling);  // the scan above admits decimal numbers only
    if (!number) except::internalError("lexer", "the number \"" + spelling + "\" does not read");
    token.number = *number;
    advance(length);
}

void Lexer::lexQuoted(char quote, TokenKind kind) {
    const SourcePos start = here();
    advance();
    std::string bytes;
    for (;;) {
        const char c = peek();
        if (atEnd() || c == '\n') except::throwMessage(UnterminatedText(sourceName_, start.line, start.column));
        advance();
        if (c != quote) {
            bytes += c;
        } else if (peek() == quote) {
            bytes += quote;
            advance();
        } else {
            break;
        }
    }
    Token& token = emit(kind, start);
    token.textValue = textValue(bytes, start);
}

bool Lexer::atBlockCommentStart() const {
    if (peek(1) != '{') return false;
    const std::size_t lineStart = src_.rfind('\n', pos_ == 0 ? 0 : pos_ - 1);
    const std::size_t from = pos_ == 0 || lineStart == std::string_view::npos ? 0 : lineStart + 1;
    const std::size_t lineEnd = src_.find('\n', pos_);
    const std::string_view line = src_.substr(from, lineEnd == std::string_view::npos ? lineEnd : lineEnd - from);
    return lineIs(line, "%{");
}

void Lexer::skipBlockComment() {
    const SourcePos start = here();
    int depth = 0;
    for (;;) {
        if (atEnd()) except::throwMessage(UnterminatedComment(sourceName_, start.line, start.column));
        const std::size_t lineEnd = src_.find('\n', pos_);
        const std::string_view line = src_.substr(pos_, lineEnd == std::string_view::npos ? lineEnd : lineEnd - pos_);
        if (lineIs(line, "%{")) ++depth;
        if (lineIs(line, "%}")) --depth;
        advance(line.size());
        if (depth == 0) return;  // the line break after "%}" ends the statement as usual
        advance();
    }
}

void Lexer::skipToLineEnd() {
    while (!atEnd() && peek() != '\n') advance();
}

// After an identifier that starts a statement: is the rest of the statement
// command syntax ("hold on", "warning off all", "disp 'a b'")?
bool Lexer::commandSyntaxFollows() const {
    std::size_t i = 0;
    if (!isBlank(peek())) return false;
    while (isBlank(peek(i))) ++i;
    const char c = peek(i);
    if (c == '\0' || c == '\n' || c == ';' || c == ',' || c == '%' || c == '(' || c == '[' || c == '{') return false;
    if (kOperatorChars.find(c) == std::string_view::npos) return true;
    const std::size_t length = operatorLength(src_.substr(pos_ + i));
    const char after = peek(i + length);
    if (c == '=' && length == 1) return false;                           // an assignment
    if (after == '\0' || after == '\n' || isBlank(after)) return false;  // a binary operator between blanks
    return c == '-' && text::isIdentifierStart(after);                   // an option word ("-all")
}

void Lexer::lexCommandWords() {
    for (;;) {
        while (isBlank(peek())) advance();
        const char c = peek();
        if (atEnd() || c == '\n' || c == ';' || c == ',' || c == '%') return;
        const SourcePos start = here();
        std::string bytes;
        while (!atEnd() && !isBlank(peek()) && peek() != '\n' && peek() != ';' && peek() != ',') {
            const char quote = peek();
            if (quote != '\'' && quote != '"') {
                bytes += quote;
                advance();
                continue;
            }
            advance();
            for (;;) {
                if (atEnd() || peek() == '\n')
                    except::throwMessage(UnterminatedText(sourceName_, start.line, start.column));
                const char inner = peek();
                advance();
                if (inner != quote) {
                    bytes += inner;
                } else if (peek() == quote) {
                    bytes += quote;
                    advance();
                } else {
                    break;
                }
            }
        }
        Token& token = emit(TokenKind::CommandWord, start);
        token.textValue = textValue(bytes, start);
    }
}

std::u16string Lexer::textValue(const std::string& bytes, SourcePos start) const {
    try {
        return text::utf8ToUtf16(bytes);
    } catch (const except::IMsgIDException& failure) {
        if (!failure.is(except::host::InvalidUtf8::identifierText)) throw;
        except::throwMessage(BadText(sourceName_, start.line, start.column));
    }
}

void Lexer::badCharacter() const {
    const auto byte = static_cast<unsigned char>(peek());
    std::string shown;
    if (byte >= 0x21 && byte < 0x7F) {
        shown = "'" + std::string(1, static_cast<char>(byte)) + "'";
    } else if (const auto character = byte >= 0x80 ? text::decodeUtf8(src_.substr(pos_)) : std::nullopt) {
        shown = "'" + std::string(src_.substr(pos_, character->length)) + "'";
    } else {
        char buffer[16];
        std::snprintf(buffer, sizeof buffer, "byte 0x%02X", byte);
        shown = buffer;
    }
    except::throwMessage(BadCharacter(sourceName_, line_, column_, text::utf8ToUtf16(shown)));
}

}  // namespace orrery::shell::lang::detail
