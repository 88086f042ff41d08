// Running statements: blocks, control flow, expression statements and commands.
#include "shell/eval/interpreter.hpp"

#include "shell/display.hpp"
#include "shell/eval/eval_messages.hpp"
#include "shell/eval/exception_object.hpp"
#include "shell/eval/interrupt.hpp"
#include "shell/eval/stack_budget.hpp"
#include "shell/eval/user_error.hpp"
#include "shell/values/elements.hpp"
#include "shell/values/operators.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/text/text.hpp>

#include <optional>

namespace orrery::shell::eval {

using lang::StmtKind;
using value::ClassId;
using value::ValueArray;

Interpreter::Interpreter() : current_(&base_), functionsVersion_(nextIdentity()) { registerExceptionClass(); }
Interpreter::~Interpreter() = default;

void Interpreter::run(const lang::Program& program, const std::u16string& file, const std::u16string& frameName) {
    const StackBudget budget;
    if (callDepth_ == 0) replaced_.clear();  // no call of them is running
    for (const auto& [name, def] : program.functions) {
        auto& entry = functions_[name];
        if (entry && callDepth_ > 0) replaced_.push_back(std::move(entry));
        entry = std::make_unique<const UserFunction>(def, file);
    }
    if (!program.functions.empty()) functionsVersion_ = nextIdentity();
    std::optional<interp::FrameGuard> frame;
    if (!frameName.empty()) frame.emplace(interp::StackEntry{file, frameName, 0});
    execBlock(program.statements);
}

Interpreter::Flow Interpreter::execBlock(const lang::Block& block) {
    for (const auto& stmt : block) {
        const Flow flow = exec(*stmt);
        if (flow != Flow::Normal) return flow;
    }
    return Flow::Normal;
}

// The statement boundary: what fails inside a statement becomes the language's
// error here, while the frames of the calls it was in are still on the stack.
Interpreter::Flow Interpreter::exec(const lang::Stmt& stmt) {
    try {
        StackBudget::check();
        checkInterrupt();
        interp::setCurrentLine(stmt.pos.line);
        return execKind(stmt);
    } catch (...) {
        rethrowAsUserError();
    }
}

Interpreter::Flow Interpreter::execKind(const lang::Stmt& stmt) {
    switch (stmt.kind) {
        case StmtKind::Expression: execExpression(stmt); break;
        case StmtKind::Assign: execAssign(stmt); break;
        case StmtKind::MultiAssign: execMultiAssign(stmt); break;
        case StmtKind::Command: execCommand(stmt); break;
        case StmtKind::If: return execIf(stmt);
        case StmtKind::For: return execFor(stmt);
        case StmtKind::While: return execWhile(stmt);
        case StmtKind::Switch: return execSwitch(stmt);
        case StmtKind::Try: return execTry(stmt);
        case StmtKind::Break: return Flow::Break;
        case StmtKind::Continue: return Flow::Continue;
        case StmtKind::Return: return Flow::Return;
    }
    return Flow::Normal;
}

Interpreter::Flow Interpreter::execIf(const lang::Stmt& stmt) {
    for (const auto& clause : stmt.clauses) {
        if (values::isTrue(eval(*clause.test))) return execBlock(clause.body);
    }
    return stmt.hasOtherwise ? execBlock(stmt.otherwise) : Flow::Normal;
}

Interpreter::Flow Interpreter::execFor(const lang::Stmt& stmt) {
    const ValueArray range = eval(*stmt.expr);
    if (range.is(ClassId::Object)) except::throwMessage(ForOverClass(text::asciiToUtf16(range.className())));
    const std::size_t rows = range.dims().rows();
    const std::size_t columns = range.isEmpty() ? 0 : range.numel() / rows;
    const std::uint32_t slot = current_->slot(stmt.name, stmt.slot);
    for (std::size_t c = 0; c < columns; ++c) {
        current_->setAt(slot, values::columnOf(range, c));
        checkInterrupt();
        const Flow flow = execBlock(stmt.body);
        if (flow == Flow::Break) break;
        if (flow == Flow::Return) return flow;
    }
    return Flow::Normal;
}

Interpreter::Flow Interpreter::execWhile(const lang::Stmt& stmt) {
    while (values::isTrue(eval(*stmt.expr))) {
        checkInterrupt();
        const Flow flow = execBlock(stmt.body);
        if (flow == Flow::Break) break;
        if (flow == Flow::Return) return flow;
    }
    return Flow::Normal;
}

// A case label matches a number equal to the subject, a text equal to it, or
// a cell holding either.
bool Interpreter::caseMatches(const ValueArray& subject, const ValueArray& label) {
    if (label.is(ClassId::Cell)) {
        for (std::size_t i = 0; i < label.numel(); ++i)
            if (caseMatches(subject, label.cellAt(i))) return true;
        return false;
    }
    const bool subjectText = subject.isTextScalarTolerant();
    const bool labelText = label.isTextScalarTolerant();
    if (subjectText || labelText) return subjectText && labelText && subject.text() == label.text();
    if (!values::isNumberLike(subject) || !values::isNumberLike(label) || !subject.isScalar() || !label.isScalar())
        except::throwMessage(SwitchValue());
    return subject.realAt(0) == label.realAt(0);
}

Interpreter::Flow Interpreter::execSwitch(const lang::Stmt& stmt) {
    const ValueArray subject = eval(*stmt.expr);
    for (const auto& clause : stmt.clauses) {
        if (caseMatches(subject, eval(*clause.test))) return execBlock(clause.body);
    }
    return stmt.hasOtherwise ? execBlock(stmt.otherwise) : Flow::Normal;
}

Interpreter::Flow Interpreter::execTry(const lang::Stmt& stmt) {
    // Statements have turned every failure into the language's error by now;
    // internal faults and interruptions pass on to the top level.
    std::optional<except::QException> caught;
    try {
        return execBlock(stmt.body);
    } catch (const except::QException& error) {
        if (isInterruption(error)) throw;
        caught = error;
    }
    recordLastError(*caught);
    if (!stmt.name.empty()) current_->setAt(current_->slot(stmt.name, stmt.slot), makeExceptionObject(*caught));
    return execBlock(stmt.otherwise);
}

void Interpreter::execExpression(const lang::Stmt& stmt) {
    const lang::Expr& expr = *stmt.expr;
    if (expr.kind == lang::ExprKind::Name) {
        if (const ValueArray* variable = findVariable(expr.name, expr.slot)) {
            if (stmt.printResult) show(expr.name, *variable);
            return;
        }
    }
    for (auto& result : evalMulti(expr, 0)) {
        current_->set("ans", result);
        if (stmt.printResult) show("ans", result);
    }
}

void Interpreter::execCommand(const lang::Stmt& stmt) {
    Values words;
    for (const auto& word : stmt.words) words.push_back(ValueArray::chars(word));
    for (auto& result : callFunction(stmt.name, words, 0)) {
        current_->set("ans", result);
        if (stmt.printResult) show("ans", result);
    }
}

// Objects whose class defines disp show through it, under the variable's name.
void Interpreter::show(std::string_view name, const ValueArray& v) {
    const ValueArray* inputs[] = {&v};
    if (v.is(ClassId::Object) && ocos::findMethodFor("disp", 1, inputs)) {
        console::consoleWrite(console::ConsoleStream::Output, std::string(name) + " =\n");
        callFunction("disp", {v}, 0);
        return;
    }
    console::consoleWrite(console::ConsoleStream::Output, displayText(name, v));
}

}  // namespace orrery::shell::eval
