// Tokens of the language, as the lexer hands them to the parser.
#pragma once

#include <cstdint>
#include <string>

namespace orrery::shell::lang {

/// What a token is.
enum class TokenKind {
    EndOfInput,
    Newline,
    Number,
    CharText,
    StringText,
    Identifier,
    CommandWord,
    // keywords
    If,
    Elseif,
    Else,
    End,
    For,
    While,
    Break,
    Continue,
    Return,
    Try,
    Catch,
    Function,
    Switch,
    Case,
    Otherwise,
    // brackets and separators
    LParen,
    RParen,
    LBracket,
    RBracket,
    LBrace,
    RBrace,
    Comma,
    Semicolon,
    Colon,
    Dot,
    At,
    Assign,
    // operators
    Plus,
    Minus,
    Star,
    Slash,
    Backslash,
    Caret,
    DotStar,
    DotSlash,
    DotBackslash,
    DotCaret,
    Transpose,
    DotTranspose,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    And,
    Or,
    AndAnd,
    OrOr,
    Not,
};

/// A place in the source: 1-based line and column (columns count bytes).
struct SourcePos {
    std::uint32_t line = 1;
    std::uint32_t column = 1;
};

/// One token. `text` holds the identifier or the source spelling of
/// punctuation; `textValue` the contents of char and string literals and of
/// command words; `number` the value of a number.
struct Token {
    TokenKind kind = TokenKind::EndOfInput;
    SourcePos pos;
    bool spaceBefore = false;
    std::string text;
    std::u16string textValue;
    double number = 0;
};

/// How error messages name a token: "')'", "end of line", "identifier 'x'".
std::string describeToken(const Token& token);

/// The spelling of a token kind for "expected ..." texts: "')'", "an identifier".
std::string describeKind(TokenKind kind);

}  // namespace orrery::shell::lang
