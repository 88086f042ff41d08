// How tokens are named in syntax error messages.
#include "shell/lang/token.hpp"

namespace orrery::shell::lang {
namespace {

std::string quoted(std::string_view spelling) { return "'" + std::string(spelling) + "'"; }

}  // namespace

std::string describeKind(TokenKind kind) {
    switch (kind) {
        case TokenKind::EndOfInput: return "end of input";
        case TokenKind::Newline: return "end of line";
        case TokenKind::Number: return "a number";
        case TokenKind::CharText: return "a char text";
        case TokenKind::StringText: return "a string";
        case TokenKind::Identifier: return "a name";
        case TokenKind::CommandWord: return "a command word";
        case TokenKind::If: return quoted("if");
        case TokenKind::Elseif: return quoted("elseif");
        case TokenKind::Else: return quoted("else");
        case TokenKind::End: return quoted("end");
        case TokenKind::For: return quoted("for");
        case TokenKind::While: return quoted("while");
        case TokenKind::Break: return quoted("break");
        case TokenKind::Continue: return quoted("continue");
        case TokenKind::Return: return quoted("return");
        case TokenKind::Try: return quoted("try");
        case TokenKind::Catch: return quoted("catch");
        case TokenKind::Function: return quoted("function");
        case TokenKind::Switch: return quoted("switch");
        case TokenKind::Case: return quoted("case");
        case TokenKind::Otherwise: return quoted("otherwise");
        case TokenKind::LParen: return quoted("(");
        case TokenKind::RParen: return quoted(")");
        case TokenKind::LBracket: return quoted("[");
        case TokenKind::RBracket: return quoted("]");
        case TokenKind::LBrace: return quoted("{");
        case TokenKind::RBrace: return quoted("}");
        case TokenKind::Comma: return quoted(",");
        case TokenKind::Semicolon: return quoted(";");
        case TokenKind::Colon: return quoted(":");
        case TokenKind::Dot: return quoted(".");
        case TokenKind::At: return quoted("@");
        case TokenKind::Assign: return quoted("=");
        default: return "an operator";
    }
}

std::string describeToken(const Token& token) {
    switch (token.kind) {
        case TokenKind::Identifier: return "the name " + quoted(token.text);
        case TokenKind::Number: return "the number " + token.text;
        case TokenKind::Comma: return token.text.empty() ? "a blank between elements" : describeKind(token.kind);
        case TokenKind::Semicolon: return token.text == "\n" ? "end of line" : describeKind(token.kind);
        case TokenKind::Plus:
        case TokenKind::Minus:
        case TokenKind::Star:
        case TokenKind::Slash:
        case TokenKind::Backslash:
        case TokenKind::Caret:
        case TokenKind::DotStar:
        case TokenKind::DotSlash:
        case TokenKind::DotBackslash:
        case TokenKind::DotCaret:
        case TokenKind::Transpose:
        case TokenKind::DotTranspose:
        case TokenKind::Equal:
        case TokenKind::NotEqual:
        case TokenKind::Less:
        case TokenKind::LessEqual:
        case TokenKind::Greater:
        case TokenKind::GreaterEqual:
        case TokenKind::And:
        case TokenKind::Or:
        case TokenKind::AndAnd:
        case TokenKind::OrOr:
        case TokenKind::Not: return "the operator " + quoted(token.text);
        default: return describeKind(token.kind);
    }
}

}  // namespace orrery::shell::lang
