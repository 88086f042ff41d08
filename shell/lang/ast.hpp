// The syntax tree the parser builds and the evaluator walks.
#pragma once

#include "shell/lang/token.hpp"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace orrery::shell::lang {

struct Expr;
struct Stmt;
struct FunctionDef;
using ExprPtr = std::unique_ptr<Expr>;
using StmtPtr = std::unique_ptr<Stmt>;
using Block = std::vector<StmtPtr>;

/// Unary and binary operators.
enum class Op {
    Plus,
    Minus,
    Not,  // unary (Plus, Minus also binary)
    Times,
    Divide,
    LeftDivide,
    Power,  // matrix forms
    ElementTimes,
    ElementDivide,
    ElementLeftDivide,
    ElementPower,
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
};

/// The workspace slot of a name, remembered by the node that names it together
/// with the identity of the slot layout it belongs to (0: none yet). The
/// evaluator fills it on first use; it is not part of the source's meaning.
struct SlotMemo {
    std::uint64_t layout = 0;
    std::uint32_t slot = 0;
};

/// What the name of a call was found to be, remembered by the node together with
/// the version of the interpreter's script functions it was found among (0: not
/// yet), so that a call site looks its name up once. The evaluator fills it;
/// `script` is the evaluator's own record of the script function.
struct CallMemo {
    enum class Found : std::uint8_t { SessionCommand, Script, Neither };
    std::uint64_t functions = 0;
    Found found = Found::Neither;
    const void* script = nullptr;
};

enum class ExprKind {
    Number,
    CharText,
    StringText,
    Name,       ///< a variable or a function; `name`
    Colon,      ///< a bare ':' as an index
    EndIndex,   ///< 'end' inside an index
    Unary,      ///< op operands[0]
    Binary,     ///< operands[0] op operands[1]; AndAnd/OrOr short-circuit
    Range,      ///< operands: start, stop, or start, step, stop
    Postfix,    ///< operands[0] followed by `suffixes`
    Transpose,  ///< operands[0]' (conjugate) or operands[0].'
    Matrix,     ///< [rows]
    CellArray,  ///< {rows}
};

enum class SuffixKind { Paren, Brace, Field, DynamicField };

/// One step of an index or field chain: (args), {args}, .name or .(expr).
struct Suffix {
    SuffixKind kind = SuffixKind::Paren;
    SourcePos pos;
    std::vector<ExprPtr> args;  ///< index arguments, or the one name expression of .(expr)
    std::string field;          ///< the field name of .name
};

struct Expr {
    Expr() = default;
    Expr(const Expr&) = delete;
    Expr& operator=(const Expr&) = delete;
    /// Frees the operands' subtrees from a list, so a long operator chain
    /// does not recurse once per operator.
    ~Expr();

    ExprKind kind = ExprKind::Number;
    SourcePos pos;
    int depth = 1;  ///< height of the tree below and including this node
    double number = 0;
    std::u16string text;
    std::string name;
    mutable SlotMemo slot;    ///< of `name` as a variable
    mutable CallMemo callee;  ///< of `name` as a function
    Op op = Op::Plus;
    std::vector<ExprPtr> operands;
    std::vector<Suffix> suffixes;
    std::vector<std::vector<ExprPtr>> rows;
};

/// An assignment target: name followed by a chain, or "~" for an ignored output.
struct LValue {
    SourcePos pos;
    bool ignored = false;
    std::string name;
    mutable SlotMemo slot;
    std::vector<Suffix> suffixes;
};

enum class StmtKind {
    Expression,
    Assign,
    MultiAssign,
    Command,
    If,
    For,
    While,
    Switch,
    Try,
    Break,
    Continue,
    Return,
};

/// A condition (if/elseif) or case value with the statements it guards.
struct Clause {
    ExprPtr test;
    Block body;
};

struct Stmt {
    StmtKind kind = StmtKind::Expression;
    SourcePos pos;
    bool printResult = true;            ///< not ended by a semicolon
    ExprPtr expr;                       ///< value, for range, while/switch subject
    std::vector<LValue> targets;        ///< Assign (one) and MultiAssign
    std::string name;                   ///< Command name, for variable, catch variable
    mutable SlotMemo slot;              ///< of the for or catch variable
    std::vector<std::u16string> words;  ///< Command words
    std::vector<Clause> clauses;        ///< if/elseif tests, switch cases
    Block body;                         ///< for, while and try bodies
    Block otherwise;                    ///< else, otherwise and catch bodies
    bool hasOtherwise = false;
};

/// A function defined in a script file.
struct FunctionDef {
    std::string name;
    SourcePos pos;
    std::vector<std::string> inputs;
    std::vector<std::string> outputs;
    Block body;
    /// The body ran to the end of the source with no "end" or next "function":
    /// right for a script file, a block still open at the prompt.
    bool endedWithSource = false;
};

/// A parsed source: its statements and the functions it defines.
struct Program {
    std::u16string sourceName;
    Block statements;
    std::map<std::string, std::shared_ptr<const FunctionDef>> functions;
};

}  // namespace orrery::shell::lang
