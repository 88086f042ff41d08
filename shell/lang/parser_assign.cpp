// The parser's assignments and function definitions.
#include "shell/lang/parser_state.hpp"
#include "shell/lang/syntax_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

namespace orrery::shell::lang::detail {

using enum TokenKind;

StmtPtr Parser::parseExpressionOrAssign() {
    auto stmt = std::make_unique<Stmt>();
    stmt->pos = peek().pos;
    ExprPtr expr = parseExpr();
    if (accept(Assign)) {
        stmt->kind = StmtKind::Assign;
        stmt->targets.push_back(toLValue(std::move(expr)));
        stmt->expr = parseExpr();
    } else {
        stmt->kind = StmtKind::Expression;
        stmt->expr = std::move(expr);
    }
    endStatement(*stmt);
    return stmt;
}

// "[a, b] = ..." rather than a matrix: the bracket closes just before a lone '='.
bool Parser::startsMultiAssign() const {
    int depth = 0;
    for (std::size_t ahead = 0;; ++ahead) {
        const TokenKind kind = peek(ahead).kind;
        if (kind == EndOfInput || kind == Newline) return false;
        if (kind == LBracket || kind == LParen || kind == LBrace) ++depth;
        if (kind == RBracket || kind == RParen || kind == RBrace) {
            if (--depth == 0) return peek(ahead + 1).kind == Assign;
        }
    }
}

StmtPtr Parser::parseMultiAssign() {
    auto stmt = std::make_unique<Stmt>();
    stmt->kind = StmtKind::MultiAssign;
    stmt->pos = take().pos;
    for (;;) {
        if (at(Not) && (peek(1).kind == Comma || peek(1).kind == RBracket)) {
            LValue ignored;
            ignored.pos = take().pos;
            ignored.ignored = true;
            stmt->targets.push_back(std::move(ignored));
        } else {
            stmt->targets.push_back(toLValue(parsePostfix()));
        }
        if (accept(RBracket)) break;
        expect(Comma, "',' or ']' in the list of outputs");
    }
    expect(Assign, "'='");
    stmt->expr = parseExpr();
    endStatement(*stmt);
    return stmt;
}

LValue Parser::toLValue(ExprPtr expr) {
    LValue target;
    target.pos = expr->pos;
    if (expr->kind == ExprKind::Name) {
        target.name = expr->name;
        return target;
    }
    if (expr->kind == ExprKind::Postfix && expr->operands[0]->kind == ExprKind::Name) {
        target.name = expr->operands[0]->name;
        target.suffixes = std::move(expr->suffixes);
        return target;
    }
    except::throwMessage(BadAssignmentTarget(sourceName_, target.pos.line, target.pos.column));
}

std::vector<std::string> Parser::parseNameList(TokenKind close) {
    std::vector<std::string> names;
    if (accept(close)) return names;
    for (;;) {
        if (accept(Not)) {
            names.emplace_back("~");
        } else {
            names.push_back(expect(Identifier, "a name").text);
        }
        if (accept(close)) return names;
        expect(Comma, "',' between names");
    }
}

void Parser::parseFunction() {
    auto def = std::make_shared<FunctionDef>();
    def->pos = take().pos;
    if (accept(LBracket)) {
        def->outputs = parseNameList(RBracket);
        expect(Assign, "'=' after the outputs");
    } else if (at(Identifier) && peek(1).kind == Assign) {
        def->outputs.push_back(take().text);
        take();
    }
    const Token& name = expect(Identifier, "the function name");
    def->name = name.text;
    if (accept(LParen)) def->inputs = parseNameList(RParen);
    ++blockDepth_;
    const int outerLoops = loopDepth_;
    loopDepth_ = 0;
    def->body = parseBlock({End, Function});
    loopDepth_ = outerLoops;
    --blockDepth_;
    def->endedWithSource = at(EndOfInput);
    accept(End);
    if (program_.functions.contains(def->name)) {
        except::throwMessage(
            DuplicateFunction(sourceName_, name.pos.line, name.pos.column, text::utf8ToUtf16(def->name)));
    }
    program_.functions.emplace(def->name, std::move(def));
}

}  // namespace orrery::shell::lang::detail
