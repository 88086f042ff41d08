// The evaluator: runs parsed programs against a base workspace, calls script
// functions and built-ins, and displays results.
#pragma once

#include "shell/eval/place_assignment.hpp"
#include "shell/eval/workspace.hpp"
#include "shell/lang/ast.hpp"
#include "shell/values/indexing.hpp"

#include <orrery/interp/call_stack.hpp>
#include <orrery/value/value_array.hpp>

#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace orrery::shell::eval {

/// The values an expression gives: one, nearly always, kept without a heap block.
using Values = boost::container::small_vector<value::ValueArray, 1>;

/// How deeply script functions may call each other.
inline constexpr std::size_t kMaxCallDepth = 10000;

/// Runs programs. Errors leave run() as orrery::except::QException (language
/// errors and catalogued failures are turned into one, with the call stack of
/// the moment they happened); the caller reports them. Internal faults
/// (except::InternalError and other exceptions) pass through unchanged.
class Interpreter {
public:
    /// Results of statements without a semicolon are displayed on the console.
    Interpreter();
    ~Interpreter();
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    /// Makes the program's functions callable (replacing those of the same
    /// name), then runs its statements in the base workspace. A non-empty
    /// frameName runs them inside a call-stack frame (file, frameName), as a
    /// script runs; prompt lines run without one.
    void run(const lang::Program& program, const std::u16string& file, const std::u16string& frameName);

    Workspace& baseWorkspace() { return base_; }
    /// True when the workspace that is running has the variable.
    bool isVariable(std::string_view name) const { return current_->contains(name); }
    /// The names a statement can use now besides the registered functions and the
    /// keywords: the running workspace's variables, the script functions defined
    /// and the session commands.
    std::vector<std::string> namesInScope() const;

private:
    enum class Flow { Normal, Break, Continue, Return };

    /// A script function with what every call of it needs made once: its
    /// call-stack frame and the slots of its inputs, outputs, nargin and nargout
    /// in the layout all its calls' workspaces share.
    struct UserFunction {
        UserFunction(std::shared_ptr<const lang::FunctionDef> definition, std::u16string fileName);
        std::shared_ptr<const lang::FunctionDef> def;
        std::u16string file;
        interp::StackEntry frame;
        std::unique_ptr<SlotLayout> layout;
        std::vector<std::uint32_t> inputSlots;
        std::vector<std::uint32_t> outputSlots;
        std::uint32_t narginSlot;
        std::uint32_t nargoutSlot;
    };

    /// What 'end' means inside the index arguments being evaluated.
    struct EndContext {
        const value::Dims* dims;  // null inside the arguments of a function call
        std::size_t position;
        std::size_t count;
        const std::string* callee;  // the function whose arguments these are; outlives the scope
    };
    class EndScope;

    using Values = eval::Values;

    // statements (statements.cpp)
    Flow execBlock(const lang::Block& block);
    Flow exec(const lang::Stmt& stmt);
    Flow execKind(const lang::Stmt& stmt);
    Flow execIf(const lang::Stmt& stmt);
    Flow execFor(const lang::Stmt& stmt);
    Flow execWhile(const lang::Stmt& stmt);
    Flow execSwitch(const lang::Stmt& stmt);
    Flow execTry(const lang::Stmt& stmt);
    void execExpression(const lang::Stmt& stmt);
    void execCommand(const lang::Stmt& stmt);
    bool caseMatches(const value::ValueArray& subject, const value::ValueArray& label);

    // assignments (assignment.cpp)
    void execAssign(const lang::Stmt& stmt);
    void execMultiAssign(const lang::Stmt& stmt);
    void assignTo(const lang::LValue& target, value::ValueArray rhs);
    /// Fills steps (empty) with the chain's index arguments and field names.
    void planAssignment(const value::ValueArray& root, const std::vector<lang::Suffix>& chain, AssignSteps& steps);

    /// The variable of that name in the current workspace (null when unset),
    /// through the slot the naming node remembers.
    const value::ValueArray* findVariable(const std::string& name, lang::SlotMemo& memo) {
        return current_->at(current_->slot(name, memo));
    }

    // expressions (expressions.cpp)
    value::ValueArray eval(const lang::Expr& expr);
    Values evalMulti(const lang::Expr& expr, int nargout);
    value::ValueArray evalBinary(const lang::Expr& expr);
    /// The right operand of && or || when the value of the left does not decide.
    value::ValueArray evalShortCircuit(const lang::Expr& expr, const value::ValueArray& left);
    value::ValueArray evalRange(const lang::Expr& expr);
    value::ValueArray evalEnd(const lang::Expr& expr);
    value::ValueArray evalBracketed(const lang::Expr& expr);
    value::ValueArray applyOperator(lang::Op op, const value::ValueArray& a, const value::ValueArray* b);

    // names, indexing and fields (postfix.cpp)
    Values evalPostfix(const lang::Expr& expr, int nargout);
    /// A name (an Expr of kind Name), alone or followed by the suffixes of postfix.
    Values evalName(const lang::Expr& name, const lang::Expr* postfix, int nargout);
    Values applySuffixes(Values current, const std::vector<lang::Suffix>& suffixes, std::size_t k, int nargout);
    Values fieldValues(const value::ValueArray& v, const std::string& field);
    /// Appends the suffix's index arguments, 'end' standing for target's size, to args.
    void evalIndexArgs(const lang::Suffix& suffix, const value::ValueArray& target, values::IndexArgs& args);
    values::IndexArgs evalIndexArgs(const lang::Suffix& suffix, const value::ValueArray& target);
    std::string dynamicFieldName(const lang::Suffix& suffix);
    /// Appends the values of a call's arguments to values.
    void evalArguments(const std::vector<lang::ExprPtr>& args, const std::string& callee, Values& values);

    /// What a call by name runs, looked for in this order.
    struct Callee {
        enum class Kind { None, SessionCommand, Method, Script, Registered } kind = Kind::None;
        const UserFunction* script;
    };

    // calls (calls.cpp)
    /// The callee of a call site; its memo spares the name's lookups while the
    /// script functions stay as they are.
    Callee findCallee(const std::string& name, const Values& args, lang::CallMemo& memo) const;
    lang::CallMemo findName(const std::string& name) const;
    Values call(const Callee& callee, const std::string& name, const Values& args, int nargout);
    Values callFunction(const std::string& name, const Values& args, int nargout);
    /// Runs a script function; the caller holds it while it runs.
    Values callUser(const UserFunction& function, const Values& args, int nargout);
    Values callBuiltin(const std::string& name, const Values& args, int nargout);
    Values callNamespaceFunction(const std::string& path, const Values& args, int nargout);

    // exit, quit, clear, who (session_commands.cpp)
    static bool isSessionCommand(std::string_view name);
    Values callSessionCommand(const std::string& name, const Values& args, int nargout);

    // display
    void show(std::string_view name, const value::ValueArray& v);

    Workspace base_;
    Workspace* current_;
    std::map<std::string, std::unique_ptr<const UserFunction>, std::less<>> functions_;
    std::uint64_t functionsVersion_;  // changes whenever functions_ does
    // functions replaced by a later definition: a call of one may still be running
    std::vector<std::unique_ptr<const UserFunction>> replaced_;
    std::vector<EndContext> endStack_;
    std::size_t callDepth_ = 0;
};

}  // namespace orrery::shell::eval
