// The parser's expression half: operators by precedence, postfix chains,
// primaries, matrices and cell arrays.
#include "shell/lang/parser.hpp"
#include "shell/lang/parser_state.hpp"
#include "shell/lang/syntax_messages.hpp"

#include <orrery/except/throw_message.hpp>

#include <algorithm>
#include <array>

namespace orrery::shell::lang::detail {

using enum TokenKind;

namespace {

struct BinaryOperator {
    TokenKind token;
    Op op;
};

// Binary levels from loosest to tightest; all associate to the left. Ranges sit
// between comparisons and additions, unary operators and powers below them.
const std::array<std::vector<BinaryOperator>, 8> kLevels{{
    {{OrOr, Op::OrOr}},
    {{AndAnd, Op::AndAnd}},
    {{Or, Op::Or}},
    {{And, Op::And}},
    {{Equal, Op::Equal},
     {NotEqual, Op::NotEqual},
     {Less, Op::Less},
     {LessEqual, Op::LessEqual},
     {Greater, Op::Greater},
     {GreaterEqual, Op::GreaterEqual}},
    {},  // ranges: parseRange
    {{Plus, Op::Plus}, {Minus, Op::Minus}},
    {{Star, Op::Times},
     {Slash, Op::Divide},
     {Backslash, Op::LeftDivide},
     {DotStar, Op::ElementTimes},
     {DotSlash, Op::ElementDivide},
     {DotBackslash, Op::ElementLeftDivide}},
}};
constexpr int kRangeLevel = 5;

const BinaryOperator* findOperator(int level, TokenKind kind) {
    for (const auto& candidate : kLevels[static_cast<std::size_t>(level)])
        if (candidate.token == kind) return &candidate;
    return nullptr;
}

}  // namespace

ExprPtr Parser::makeNode(ExprKind kind, SourcePos pos) {
    auto node = std::make_unique<Expr>();
    node->kind = kind;
    node->pos = pos;
    return node;
}

// Records the node's height and refuses trees too tall to walk safely. The left
// operand of a binary operator continues a chain (a + b - c) instead of nesting
// in it: chains are walked and freed as loops, so their length costs no height.
ExprPtr Parser::finish(ExprPtr node) {
    const bool chain = node->kind == ExprKind::Binary;
    int height = 0;
    for (std::size_t i = chain ? 1 : 0; i < node->operands.size(); ++i)
        height = std::max(height, node->operands[i]->depth);
    for (const auto& suffix : node->suffixes)
        for (const auto& arg : suffix.args) height = std::max(height, arg->depth);
    for (const auto& row : node->rows)
        for (const auto& element : row) height = std::max(height, element->depth);
    node->depth = std::max(height + 1, chain ? node->operands[0]->depth : 0);
    if (node->depth > kMaxExpressionDepth) {
        except::throwMessage(TooDeep(sourceName_, node->pos.line, node->pos.column, kMaxExpressionDepth));
    }
    return node;
}

// Nesting is counted where text really nests (brackets, parentheses, argument
// lists, prefix operators, blocks), not once more per expression inside them.
ExprPtr Parser::parseExpr() { return parseBinaryLevel(0); }

ExprPtr Parser::parseBinaryLevel(int level) {
    if (level == kRangeLevel) return parseRange();
    if (level == static_cast<int>(kLevels.size())) return parseUnary();
    ExprPtr left = parseBinaryLevel(level + 1);
    while (const BinaryOperator* found = findOperator(level, peek().kind)) {
        auto node = makeNode(ExprKind::Binary, take().pos);
        node->op = found->op;
        node->operands.push_back(std::move(left));
        node->operands.push_back(parseBinaryLevel(level + 1));
        left = finish(std::move(node));
    }
    return left;
}

ExprPtr Parser::parseRange() {
    ExprPtr first = parseBinaryLevel(kRangeLevel + 1);
    if (!at(Colon)) return first;
    auto node = makeNode(ExprKind::Range, take().pos);
    node->operands.push_back(std::move(first));
    node->operands.push_back(parseBinaryLevel(kRangeLevel + 1));
    if (accept(Colon)) node->operands.push_back(parseBinaryLevel(kRangeLevel + 1));
    return finish(std::move(node));
}

// Prefix operators (+, -, ~) before what `operand` parses; `self` parses what
// follows each of them, so they chain.
ExprPtr Parser::parsePrefixed(ExprPtr (Parser::*operand)(), ExprPtr (Parser::*self)()) {
    const TokenKind kind = peek().kind;
    if (kind != Plus && kind != Minus && kind != Not) return (this->*operand)();
    Nesting nesting(*this);
    auto node = makeNode(ExprKind::Unary, take().pos);
    node->op = kind == Plus ? Op::Plus : kind == Minus ? Op::Minus : Op::Not;
    node->operands.push_back((this->*self)());
    return finish(std::move(node));
}

ExprPtr Parser::parseUnary() { return parsePrefixed(&Parser::parsePower, &Parser::parseUnary); }

ExprPtr Parser::parsePower() {
    ExprPtr base = parsePostfix();
    while (at(Caret) || at(DotCaret)) {
        auto node = makeNode(ExprKind::Binary, peek().pos);
        node->op = take().kind == Caret ? Op::Power : Op::ElementPower;
        node->operands.push_back(std::move(base));
        node->operands.push_back(parsePowerOperand());
        base = finish(std::move(node));
    }
    return base;
}

// The exponent may carry its own sign: 2^-1.
ExprPtr Parser::parsePowerOperand() { return parsePrefixed(&Parser::parsePostfix, &Parser::parsePowerOperand); }

ExprPtr Parser::parsePostfix() {
    ExprPtr current = parsePrimary();
    bool chainOpen = false;  // current is a postfix chain still taking suffixes
    for (;;) {
        if (at(Transpose) || at(DotTranspose)) {
            if (chainOpen) current = finish(std::move(current));
            chainOpen = false;
            auto node = makeNode(ExprKind::Transpose, peek().pos);
            node->op = take().kind == Transpose ? Op::Power : Op::ElementPower;  // conjugate or plain
            node->operands.push_back(std::move(current));
            current = finish(std::move(node));
            continue;
        }
        if (!at(LParen) && !at(LBrace) && !at(Dot)) break;
        if (!chainOpen) {
            auto chain = makeNode(ExprKind::Postfix, current->pos);
            chain->operands.push_back(std::move(current));
            current = std::move(chain);
            chainOpen = true;
        }
        // assignments walk a chain recursively, so its length is bounded too
        if (current->suffixes.size() >= static_cast<std::size_t>(kMaxExpressionDepth)) tooDeep(kMaxExpressionDepth);
        if (at(Dot)) {
            parseFieldSuffix(*current);
            continue;
        }
        Suffix suffix;
        suffix.kind = at(LParen) ? SuffixKind::Paren : SuffixKind::Brace;
        suffix.pos = take().pos;
        parseArguments(suffix, suffix.kind == SuffixKind::Paren ? RParen : RBrace);
        current->suffixes.push_back(std::move(suffix));
    }
    return chainOpen ? finish(std::move(current)) : std::move(current);
}

void Parser::parseFieldSuffix(Expr& postfix) {
    Suffix suffix;
    suffix.pos = take().pos;
    if (accept(LParen)) {
        suffix.kind = SuffixKind::DynamicField;
        Nesting nesting(*this);
        suffix.args.push_back(parseExpr());
        expect(RParen, "')' after the field name expression");
    } else {
        suffix.kind = SuffixKind::Field;
        suffix.field = expect(Identifier, "a field name after '.'").text;
    }
    postfix.suffixes.push_back(std::move(suffix));
}

void Parser::parseArguments(Suffix& suffix, TokenKind close) {
    const std::string closing = close == RParen ? "')'" : "'}'";
    Nesting nesting(*this);
    ++indexDepth_;
    if (!accept(close)) {
        for (;;) {
            suffix.args.push_back(parseArgument());
            if (accept(close)) break;
            expect(Comma, "',' or " + closing);
        }
    }
    --indexDepth_;
}

ExprPtr Parser::parseArgument() {
    const TokenKind next = peek(1).kind;
    if (at(Colon) && (next == RParen || next == RBrace || next == Comma)) return makeNode(ExprKind::Colon, take().pos);
    return parseExpr();
}

ExprPtr Parser::parsePrimary() {
    const Token& token = peek();
    switch (token.kind) {
        case Number: {
            auto node = makeNode(ExprKind::Number, take().pos);
            node->number = token.number;
            return node;
        }
        case CharText:
        case StringText: {
            auto node = makeNode(token.kind == CharText ? ExprKind::CharText : ExprKind::StringText, take().pos);
            node->text = token.textValue;
            return node;
        }
        case Identifier: {
            auto node = makeNode(ExprKind::Name, take().pos);
            node->name = token.text;
            return node;
        }
        case End:
            if (indexDepth_ == 0) expected("an expression");
            return makeNode(ExprKind::EndIndex, take().pos);
        case LParen: {
            take();
            Nesting nesting(*this);
            const int outerIndexDepth = indexDepth_;
            ExprPtr inner = parseExpr();
            indexDepth_ = outerIndexDepth;
            expect(RParen, "')'");
            return inner;
        }
        case LBracket: return parseBracketed(RBracket, ExprKind::Matrix);
        case LBrace: return parseBracketed(RBrace, ExprKind::CellArray);
        default: expected("an expression");
    }
}

ExprPtr Parser::parseBracketed(TokenKind close, ExprKind kind) {
    Nesting nesting(*this);
    auto node = makeNode(kind, take().pos);
    const std::string what = close == RBracket ? "',', ';' or ']'" : "',', ';' or '}'";
    std::vector<ExprPtr> row;
    for (;;) {
        if (accept(Semicolon)) {
            if (!row.empty()) node->rows.push_back(std::move(row));
            row.clear();
        } else if (accept(close)) {
            break;
        } else if (accept(Comma)) {
            continue;
        } else {
            row.push_back(parseExpr());
            if (!at(Comma) && !at(Semicolon) && !at(close)) expected(what);
        }
    }
    if (!row.empty()) node->rows.push_back(std::move(row));
    return finish(std::move(node));
}

}  // namespace orrery::shell::lang::detail
