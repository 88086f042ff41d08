// The lexer's main loop: layout, punctuation, identifiers and keywords.
#include "shell/lang/lexer.hpp"

#include "shell/lang/lexer_state.hpp"

#include <orrery/text/identifiers.hpp>

#include <array>
#include <utility>

namespace orrery::shell::lang {
namespace detail {
namespace {

struct Spelling {
    std::string_view text;
    TokenKind kind;
};

// Longest spellings first, so that ".*" wins over ".".
constexpr std::array kOperators{
    Spelling{"&&", TokenKind::AndAnd},       Spelling{"||", TokenKind::OrOr},
    Spelling{"==", TokenKind::Equal},        Spelling{"~=", TokenKind::NotEqual},
    Spelling{"!=", TokenKind::NotEqual},     Spelling{"<=", TokenKind::LessEqual},
    Spelling{">=", TokenKind::GreaterEqual}, Spelling{".*", TokenKind::DotStar},
    Spelling{"./", TokenKind::DotSlash},     Spelling{".\\", TokenKind::DotBackslash},
    Spelling{".^", TokenKind::DotCaret},     Spelling{".'", TokenKind::DotTranspose},
    Spelling{"+", TokenKind::Plus},          Spelling{"-", TokenKind::Minus},
    Spelling{"*", TokenKind::Star},          Spelling{"/", TokenKind::Slash},
    Spelling{"\\", TokenKind::Backslash},    Spelling{"^", TokenKind::Caret},
    Spelling{"<", TokenKind::Less},          Spelling{">", TokenKind::Greater},
    Spelling{"&", TokenKind::And},           Spelling{"|", TokenKind::Or},
    Spelling{"~", TokenKind::Not},           Spelling{"!", TokenKind::Not},
    Spelling{"=", TokenKind::Assign},        Spelling{":", TokenKind::Colon},
    Spelling{".", TokenKind::Dot},           Spelling{"@", TokenKind::At},
    Spelling{",", TokenKind::Comma},         Spelling{";", TokenKind::Semicolon},
};

constexpr std::array kKeywords{
    Spelling{"if", TokenKind::If},
    Spelling{"elseif", TokenKind::Elseif},
    Spelling{"else", TokenKind::Else},
    Spelling{"end", TokenKind::End},
    Spelling{"for", TokenKind::For},
    Spelling{"while", TokenKind::While},
    Spelling{"break", TokenKind::Break},
    Spelling{"continue", TokenKind::Continue},
    Spelling{"return", TokenKind::Return},
    Spelling{"try", TokenKind::Try},
    Spelling{"catch", TokenKind::Catch},
    Spelling{"function", TokenKind::Function},
    Spelling{"switch", TokenKind::Switch},
    Spelling{"case", TokenKind::Case},
    Spelling{"otherwise", TokenKind::Otherwise},
};

// Keywords after which a new statement begins on the same line.
bool opensStatement(TokenKind kind) {
    return kind == TokenKind::Else || kind == TokenKind::Try || kind == TokenKind::Otherwise;
}

}  // namespace

std::vector<Token> Lexer::run() {
    while (!atEnd()) step();
    emit(TokenKind::EndOfInput, here());
    return std::move(tokens_);
}

void Lexer::advance(std::size_t count) {
    for (std::size_t i = 0; i < count && !atEnd(); ++i, ++pos_) {
        if (src_[pos_] == '\n') {
            ++line_;
            column_ = 1;
        } else {
            ++column_;
        }
    }
}

Token& Lexer::emit(TokenKind kind, SourcePos pos) {
    Token token;
    token.kind = kind;
    token.pos = pos;
    token.spaceBefore = spaceBefore_;
    tokens_.push_back(std::move(token));
    spaceBefore_ = false;
    const bool separator = kind == TokenKind::Newline || kind == TokenKind::Semicolon || kind == TokenKind::Comma;
    statementStart_ = brackets_.empty() && (separator || opensStatement(kind));
    return tokens_.back();
}

void Lexer::push(TokenKind kind, std::size_t length) {
    Token& token = emit(kind, here());
    token.text = std::string(src_.substr(pos_, length));
    advance(length);
}

void Lexer::step() {
    const bool space = skipBlanks();
    spaceBefore_ = spaceBefore_ || space;
    if (atEnd()) return;
    if (space && inMatrix() && previousEndsValue() && startsElement()) emit(TokenKind::Comma, here());
    const char c = peek();
    if (c == '\n') return lexNewline();
    if (isDigit(c) || (c == '.' && isDigit(peek(1)))) return lexNumber();
    if (text::isIdentifierStart(c)) return lexIdentifier();
    if (c == '"') return lexQuoted('"', TokenKind::StringText);
    if (c == '\'') {
        if (isTransposeHere(spaceBefore_)) return push(TokenKind::Transpose, 1);
        return lexQuoted('\'', TokenKind::CharText);
    }
    lexPunctuation();
}

bool Lexer::skipBlanks() {
    bool skipped = false;
    for (;;) {
        const char c = peek();
        if (c == ' ' || c == '\t' || c == '\r') {
            advance();
        } else if (c == '.' && peek(1) == '.' && peek(2) == '.') {
            skipToLineEnd();
            advance();  // the line break: the statement continues on the next line
        } else if (c == '%' && atBlockCommentStart()) {
            skipBlockComment();
        } else if (c == '%') {
            skipToLineEnd();
        } else {
            return skipped;
        }
        skipped = true;
    }
}

void Lexer::lexNewline() {
    // Inside brackets a line break separates rows; blank lines add nothing.
    if (inMatrix() && !tokens_.empty() && tokens_.back().kind == TokenKind::Semicolon) return advance();
    push(inMatrix() ? TokenKind::Semicolon : TokenKind::Newline, 1);
}

void Lexer::lexPunctuation() {
    for (const auto& op : kOperators) {
        if (src_.substr(pos_, op.text.size()) != op.text) continue;
        return push(op.kind, op.text.size());
    }
    switch (peek()) {
        case '(': return openBracket('(', TokenKind::LParen);
        case '[': return openBracket('[', TokenKind::LBracket);
        case '{': return openBracket('{', TokenKind::LBrace);
        case ')': return closeBracket(TokenKind::RParen);
        case ']': return closeBracket(TokenKind::RBracket);
        case '}': return closeBracket(TokenKind::RBrace);
        default: badCharacter();
    }
}

void Lexer::openBracket(char bracket, TokenKind kind) {
    push(kind, 1);
    brackets_.push_back(bracket);
    statementStart_ = false;
}

void Lexer::closeBracket(TokenKind kind) {
    if (!brackets_.empty()) brackets_.pop_back();
    push(kind, 1);
}

void Lexer::lexIdentifier() {
    std::size_t length = 1;
    while (isNamePart(peek(length))) ++length;
    const std::string_view word = src_.substr(pos_, length);
    for (const auto& keyword : kKeywords) {
        if (keyword.text == word) return push(keyword.kind, length);
    }
    const bool commandCandidate = statementStart_;
    push(TokenKind::Identifier, length);
    if (commandCandidate && commandSyntaxFollows()) lexCommandWords();
}

bool Lexer::previousEndsValue() const {
    if (tokens_.empty()) return false;
    switch (tokens_.back().kind) {
        case TokenKind::Number:
        case TokenKind::CharText:
        case TokenKind::StringText:
        case TokenKind::Identifier:
        case TokenKind::RParen:
        case TokenKind::RBracket:
        case TokenKind::RBrace:
        case TokenKind::Transpose:
        case TokenKind::DotTranspose:
        case TokenKind::End: return true;
        default: return false;
    }
}

// After a blank inside brackets: does a new element start here?
bool Lexer::startsElement() const {
    const char c = peek();
    const char next = peek(1);
    if (isNamePart(c) || c == '\'' || c == '"' || c == '(' || c == '[' || c == '{' || c == '@') return true;
    if (c == '.' && isDigit(next)) return true;
    if (c == '~' || c == '!') return next != '=';
    if (c == '+' || c == '-') return next != ' ' && next != '\t' && next != '=' && next != '\n' && next != '\r';
    return false;
}

// A quote right after a value is a transpose, except after a blank inside
// brackets, where it opens a text.
bool Lexer::isTransposeHere(bool space) const { return previousEndsValue() && !(space && inMatrix()); }

}  // namespace detail

std::vector<Token> tokenize(std::string_view source, std::u16string sourceName) {
    return detail::Lexer(source, std::move(sourceName)).run();
}

std::vector<std::string_view> keywords() {
    std::vector<std::string_view> words;
    words.reserve(std::size(detail::kKeywords));
    for (const auto& keyword : detail::kKeywords) words.push_back(keyword.text);
    return words;
}

}  // namespace orrery::shell::lang
