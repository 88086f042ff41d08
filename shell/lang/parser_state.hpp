// The parser's working state, shared by its statement (parser.cpp) and
// expression (parser_expr.cpp) halves.
#pragma once

#include "shell/lang/ast.hpp"

#include <initializer_list>
#include <string>
#include <vector>

namespace orrery::shell::lang::detail {

class Parser {
public:
    Parser(std::vector<Token> tokens, std::u16string sourceName)
        : tokens_(std::move(tokens)), sourceName_(std::move(sourceName)) {}
    Program run();

    // ---- expressions (parser_expr.cpp) ----
    ExprPtr parseExpr();

private:
    /// Counts one level of nesting for as long as it lives.
    class Nesting {
    public:
        explicit Nesting(Parser& parser);
        ~Nesting() { --parser_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        Parser& parser_;
    };

    // statements (parser.cpp)
    Block parseBlock(std::initializer_list<TokenKind> terminators);
    StmtPtr parseStatement();
    StmtPtr beginStatement(StmtKind kind);
    Block parseLoopBody();
    StmtPtr parseIf();
    StmtPtr parseFor();
    StmtPtr parseWhile();
    StmtPtr parseSwitch();
    StmtPtr parseTry();
    StmtPtr parseCommand();
    StmtPtr parseMultiAssign();
    StmtPtr parseExpressionOrAssign();
    void parseFunction();
    std::vector<std::string> parseNameList(TokenKind close);
    LValue toLValue(ExprPtr expr);
    bool startsMultiAssign() const;
    void endStatement(Stmt& stmt);

    // expressions (parser_expr.cpp)
    ExprPtr parseBinaryLevel(int level);
    ExprPtr parseRange();
    ExprPtr parsePrefixed(ExprPtr (Parser::*operand)(), ExprPtr (Parser::*self)());
    ExprPtr parseUnary();
    ExprPtr parsePower();
    ExprPtr parsePowerOperand();
    ExprPtr parsePostfix();
    ExprPtr parsePrimary();
    ExprPtr parseBracketed(TokenKind close, ExprKind kind);
    void parseArguments(Suffix& suffix, TokenKind close);
    ExprPtr parseArgument();
    void parseFieldSuffix(Expr& postfix);
    ExprPtr finish(ExprPtr node);
    ExprPtr makeNode(ExprKind kind, SourcePos pos);

    // tokens
    const Token& peek(std::size_t ahead = 0) const;
    bool at(TokenKind kind) const { return peek().kind == kind; }
    bool accept(TokenKind kind);
    const Token& take();
    const Token& expect(TokenKind kind, const std::string& what);
    [[noreturn]] void expected(const std::string& what) const;
    [[noreturn]] void tooDeep(int limit) const;
    bool atSeparator() const;

    std::vector<Token> tokens_;
    std::u16string sourceName_;
    std::size_t pos_ = 0;
    int nesting_ = 0;
    int indexDepth_ = 0;  // inside index arguments, where 'end' is a value
    int loopDepth_ = 0;
    int blockDepth_ = 0;
    Program program_;
};

}  // namespace orrery::shell::lang::detail
