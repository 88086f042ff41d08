// The lexer's working state, shared by its two source files (punctuation and
// layout in lexer.cpp; literals, comments and command words in lexer_scan.cpp).
#pragma once

#include "shell/lang/token.hpp"

#include <orrery/text/identifiers.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace orrery::shell::lang::detail {

// Character classes of the lexer's two source files.
inline bool isDigit(char c) { return c >= '0' && c <= '9'; }
inline bool isNamePart(char c) { return text::isIdentifierPart(c, text::IdentifierKind::Name); }

class Lexer {
public:
    Lexer(std::string_view source, std::u16string sourceName) : src_(source), sourceName_(std::move(sourceName)) {}
    std::vector<Token> run();

private:
    // lexer.cpp
    void step();
    bool skipBlanks();
    void lexNewline();
    void lexPunctuation();
    void lexIdentifier();
    bool inMatrix() const { return !brackets_.empty() && brackets_.back() != '('; }
    bool previousEndsValue() const;
    bool startsElement() const;
    bool isTransposeHere(bool space) const;
    void push(TokenKind kind, std::size_t length);
    void openBracket(char bracket, TokenKind kind);
    void closeBracket(TokenKind kind);
    // lexer_scan.cpp
    void lexNumber();
    void lexQuoted(char quote, TokenKind kind);
    bool atBlockCommentStart() const;
    void skipBlockComment();
    void skipToLineEnd();
    bool commandSyntaxFollows() const;
    void lexCommandWords();
    [[noreturn]] void badCharacter() const;
    /// The UTF-16 value of a quoted text or command word that starts at start;
    /// bytes that are not UTF-8 are a syntax error there.
    std::u16string textValue(const std::string& bytes, SourcePos start) const;

    char peek(std::size_t ahead = 0) const { return pos_ + ahead < src_.size() ? src_[pos_ + ahead] : '\0'; }
    bool atEnd() const { return pos_ >= src_.size(); }
    void advance(std::size_t count = 1);
    SourcePos here() const { return {line_, column_}; }
    Token& emit(TokenKind kind, SourcePos pos);

    std::string_view src_;
    std::u16string sourceName_;
    std::size_t pos_ = 0;
    std::uint32_t line_ = 1;
    std::uint32_t column_ = 1;
    std::string brackets_;        // open brackets, innermost last
    bool statementStart_ = true;  // the next identifier may begin command syntax
    bool spaceBefore_ = false;
    std::vector<Token> tokens_;
};

}  // namespace orrery::shell::lang::detail
