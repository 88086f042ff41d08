// The parser's statement half: blocks, control statements, assignments,
// command syntax and function definitions.
#include "shell/lang/parser.hpp"

#include "shell/lang/lexer.hpp"
#include "shell/lang/parser_state.hpp"
#include "shell/lang/syntax_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <optional>

namespace orrery::shell::lang {
namespace detail {

using enum TokenKind;

Parser::Nesting::Nesting(Parser& parser) : parser_(parser) {
    if (++parser_.nesting_ > kMaxNesting) {
        --parser_.nesting_;
        parser_.tooDeep(kMaxNesting);
    }
}

// ---- tokens ----------------------------------------------------------------------

const Token& Parser::peek(std::size_t ahead) const {
    const std::size_t i = pos_ + ahead;
    return i < tokens_.size() ? tokens_[i] : tokens_.back();
}

bool Parser::accept(TokenKind kind) {
    if (!at(kind)) return false;
    take();
    return true;
}

const Token& Parser::take() {
    const Token& token = peek();
    if (pos_ + 1 < tokens_.size()) ++pos_;
    return token;
}

const Token& Parser::expect(TokenKind kind, const std::string& what) {
    if (!at(kind)) expected(what);
    return take();
}

void Parser::expected(const std::string& what) const {
    const Token& found = peek();
    except::throwMessage(UnexpectedToken(sourceName_, found.pos.line, found.pos.column, text::utf8ToUtf16(what),
                                         text::utf8ToUtf16(describeToken(found))));
}

void Parser::tooDeep(int limit) const {
    const Token& found = peek();
    except::throwMessage(TooDeep(sourceName_, found.pos.line, found.pos.column, limit));
}

bool Parser::atSeparator() const { return at(Newline) || at(Semicolon) || at(Comma) || at(EndOfInput); }

// ---- blocks and statements ---------------------------------------------------------

Program Parser::run() {
    program_.sourceName = sourceName_;
    program_.statements = parseBlock({});
    if (!at(EndOfInput)) expected("a statement");
    return std::move(program_);
}

Block Parser::parseBlock(std::initializer_list<TokenKind> terminators) {
    std::optional<Nesting> nesting;  // the program's own block is no nesting
    if (blockDepth_ > 0) nesting.emplace(*this);
    ++blockDepth_;
    Block block;
    for (;;) {
        while (at(Newline) || at(Semicolon) || at(Comma)) take();
        if (at(EndOfInput)) break;
        bool terminated = false;
        for (TokenKind kind : terminators) terminated = terminated || at(kind);
        if (terminated) break;
        if (at(Function)) {
            if (blockDepth_ > 1 || loopDepth_ > 0) {
                except::throwMessage(MisplacedFunction(sourceName_, peek().pos.line, peek().pos.column));
            }
            parseFunction();
            continue;
        }
        if (StmtPtr stmt = parseStatement()) block.push_back(std::move(stmt));
    }
    --blockDepth_;
    return block;
}

StmtPtr Parser::parseStatement() {
    const Token& token = peek();
    switch (token.kind) {
        case If: return parseIf();
        case For: return parseFor();
        case While: return parseWhile();
        case Switch: return parseSwitch();
        case Try: return parseTry();
        case Break:
        case Continue:
        case Return: {
            if (token.kind != Return && loopDepth_ == 0) {
                except::throwMessage(OutsideLoop(sourceName_, token.pos.line, token.pos.column,
                                                 text::utf8ToUtf16(token.kind == Break ? "break" : "continue")));
            }
            auto stmt = beginStatement(token.kind == Break      ? StmtKind::Break
                                       : token.kind == Continue ? StmtKind::Continue
                                                                : StmtKind::Return);
            endStatement(*stmt);
            return stmt;
        }
        case Identifier:
            if (peek(1).kind == CommandWord) return parseCommand();
            return parseExpressionOrAssign();
        case LBracket:
            if (startsMultiAssign()) return parseMultiAssign();
            return parseExpressionOrAssign();
        default: return parseExpressionOrAssign();
    }
}

void Parser::endStatement(Stmt& stmt) {
    if (at(Semicolon)) {
        stmt.printResult = false;
        take();
    } else if (at(Comma) || at(Newline)) {
        take();
    } else if (!at(EndOfInput)) {
        expected("the end of the statement");
    }
}

// A statement of the kind, positioned at its keyword, which it consumes.
StmtPtr Parser::beginStatement(StmtKind kind) {
    auto stmt = std::make_unique<Stmt>();
    stmt->kind = kind;
    stmt->pos = take().pos;
    return stmt;
}

// The body of a for or while loop, where break and continue are allowed.
Block Parser::parseLoopBody() {
    ++loopDepth_;
    Block body = parseBlock({End});
    --loopDepth_;
    return body;
}

StmtPtr Parser::parseIf() {
    auto stmt = beginStatement(StmtKind::If);
    do {
        Clause clause;
        clause.test = parseExpr();
        clause.body = parseBlock({Elseif, Else, End});
        stmt->clauses.push_back(std::move(clause));
    } while (accept(Elseif));
    if (accept(Else)) {
        stmt->hasOtherwise = true;
        stmt->otherwise = parseBlock({End});
    }
    expect(End, "'end' to close 'if'");
    return stmt;
}

StmtPtr Parser::parseFor() {
    auto stmt = beginStatement(StmtKind::For);
    const bool parenthesised = accept(LParen);
    stmt->name = expect(Identifier, "the name of the loop variable").text;
    expect(Assign, "'='");
    stmt->expr = parseExpr();
    if (parenthesised) expect(RParen, "')'");
    stmt->body = parseLoopBody();
    expect(End, "'end' to close 'for'");
    return stmt;
}

StmtPtr Parser::parseWhile() {
    auto stmt = beginStatement(StmtKind::While);
    stmt->expr = parseExpr();
    stmt->body = parseLoopBody();
    expect(End, "'end' to close 'while'");
    return stmt;
}

StmtPtr Parser::parseSwitch() {
    auto stmt = beginStatement(StmtKind::Switch);
    stmt->expr = parseExpr();
    while (at(Newline) || at(Semicolon) || at(Comma)) take();
    while (accept(Case)) {
        Clause clause;
        clause.test = parseExpr();
        clause.body = parseBlock({Case, Otherwise, End});
        stmt->clauses.push_back(std::move(clause));
    }
    if (accept(Otherwise)) {
        stmt->hasOtherwise = true;
        stmt->otherwise = parseBlock({End});
    }
    expect(End, "'case', 'otherwise' or 'end' in 'switch'");
    return stmt;
}

StmtPtr Parser::parseTry() {
    auto stmt = beginStatement(StmtKind::Try);
    stmt->body = parseBlock({Catch, End});
    if (accept(Catch)) {
        stmt->hasOtherwise = true;
        const TokenKind after = peek(1).kind;
        const bool nameFollows = after == Newline || after == Semicolon || after == Comma || after == EndOfInput;
        if (at(Identifier) && nameFollows) stmt->name = take().text;
        stmt->otherwise = parseBlock({End});
    }
    expect(End, "'catch' or 'end' to close 'try'");
    return stmt;
}

StmtPtr Parser::parseCommand() {
    auto stmt = std::make_unique<Stmt>();
    stmt->kind = StmtKind::Command;
    stmt->pos = peek().pos;
    stmt->name = take().text;
    while (at(CommandWord)) stmt->words.push_back(take().textValue);
    endStatement(*stmt);
    return stmt;
}

}  // namespace detail

Program parse(std::string_view source, std::u16string sourceName) {
    auto tokens = tokenize(source, sourceName);
    return detail::Parser(std::move(tokens), std::move(sourceName)).run();
}

}  // namespace orrery::shell::lang
