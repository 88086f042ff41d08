// Evaluating expressions: literals, operators, ranges, 'end' and brackets.
#include "shell/eval/interpreter.hpp"

#include "shell/eval/eval_messages.hpp"
#include "shell/eval/stack_budget.hpp"
#include "shell/values/concat.hpp"
#include "shell/values/indexing.hpp"
#include "shell/values/operators.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/text/text.hpp>

#include <boost/container/small_vector.hpp>

namespace orrery::shell::eval {

using lang::ExprKind;
using lang::Op;
using value::ClassId;
using value::ValueArray;

namespace {

// The function an object's class defines for a unary operator.
std::string_view unaryFunction(Op op) { return op == Op::Minus ? "uminus" : op == Op::Plus ? "uplus" : "not"; }

}  // namespace

ValueArray Interpreter::eval(const lang::Expr& expr) {
    // leaves first: they evaluate nothing below them, so need no stack check
    switch (expr.kind) {
        case ExprKind::Number: return ValueArray::scalar(expr.number);
        case ExprKind::CharText: return ValueArray::chars(expr.text);
        case ExprKind::StringText: return ValueArray::string(expr.text);
        case ExprKind::Colon: return ValueArray::chars(u":");
        case ExprKind::EndIndex: return evalEnd(expr);
        case ExprKind::Name:
            // a variable's value straight from the workspace, without a list of results
            if (const ValueArray* variable = findVariable(expr.name, expr.slot)) return *variable;
            break;
        default: break;
    }
    StackBudget::check();
    switch (expr.kind) {
        case ExprKind::Unary: return applyOperator(expr.op, eval(*expr.operands[0]), nullptr);
        case ExprKind::Binary: return evalBinary(expr);
        case ExprKind::Range: return evalRange(expr);
        case ExprKind::Transpose: return values::transpose(eval(*expr.operands[0]));
        case ExprKind::Matrix:
        case ExprKind::CellArray: return evalBracketed(expr);
        case ExprKind::Name:
        case ExprKind::Postfix: {
            Values results = evalMulti(expr, 1);
            if (results.empty()) except::throwMessage(NoValue());
            return std::move(results.front());
        }
        default: break;
    }
    except::throwMessage(NoValue());
}

Interpreter::Values Interpreter::evalMulti(const lang::Expr& expr, int nargout) {
    if (expr.kind == ExprKind::Name) return evalName(expr, nullptr, nargout);
    if (expr.kind == ExprKind::Postfix) return evalPostfix(expr, nargout);
    return {eval(expr)};
}

// A chain of binary operators (a + b - c, each the left operand of the next) is
// walked as a loop from its innermost operator out: its length costs no stack.
ValueArray Interpreter::evalBinary(const lang::Expr& expr) {
    boost::container::small_vector<const lang::Expr*, 8> chain{&expr};
    while (chain.back()->operands[0]->kind == ExprKind::Binary) chain.push_back(chain.back()->operands[0].get());
    ValueArray left = eval(*chain.back()->operands[0]);
    for (auto node = chain.rbegin(); node != chain.rend(); ++node) {
        if ((*node)->op == Op::AndAnd || (*node)->op == Op::OrOr) {
            left = evalShortCircuit(**node, left);
        } else {
            const ValueArray right = eval(*(*node)->operands[1]);
            left = applyOperator((*node)->op, left, &right);
        }
    }
    return left;
}

// Operators on objects run the method their class defines for them.
ValueArray Interpreter::applyOperator(Op op, const ValueArray& a, const ValueArray* b) {
    const bool objects = a.is(ClassId::Object) || (b != nullptr && b->is(ClassId::Object));
    if (objects) {
        const std::string_view name = b != nullptr ? values::operatorFunction(op) : unaryFunction(op);
        const ValueArray* inputs[] = {&a, b};
        const std::int32_t count = b != nullptr ? 2 : 1;
        if (ocos::findMethodFor(name, count, inputs)) {
            Values operands{a};
            if (b != nullptr) operands.push_back(*b);
            Values results = callFunction(std::string(name), operands, 1);
            return std::move(results.front());
        }
    }
    return b != nullptr ? values::binaryOperation(op, a, *b) : values::unaryOperation(op, a);
}

ValueArray Interpreter::evalShortCircuit(const lang::Expr& expr, const ValueArray& leftValue) {
    const bool left = leftValue.toLogicalScalar().logicalAt(0);
    if (expr.op == Op::AndAnd && !left) return ValueArray::logicalScalar(false);
    if (expr.op == Op::OrOr && left) return ValueArray::logicalScalar(true);
    return eval(*expr.operands[1]).toLogicalScalar();
}

ValueArray Interpreter::evalRange(const lang::Expr& expr) {
    const ValueArray start = eval(*expr.operands[0]);
    if (expr.operands.size() == 2) return values::makeRange(start, nullptr, eval(*expr.operands[1]));
    const ValueArray step = eval(*expr.operands[1]);
    return values::makeRange(start, &step, eval(*expr.operands[2]));
}

ValueArray Interpreter::evalEnd(const lang::Expr& /*expr*/) {
    if (endStack_.empty()) except::throwMessage(NoValue());
    const EndContext& context = endStack_.back();
    if (context.dims == nullptr) except::throwMessage(EndInCall(text::utf8ToUtf16(*context.callee)));
    return ValueArray::scalar(static_cast<double>(values::endValue(*context.dims, context.position, context.count)));
}

ValueArray Interpreter::evalBracketed(const lang::Expr& expr) {
    values::ValueRows rows;
    for (const auto& row : expr.rows) {
        values::ValueRow elements;
        for (const auto& element : row) {
            for (auto& v : evalMulti(*element, 1)) elements.push_back(std::move(v));
        }
        rows.push_back(std::move(elements));
    }
    return expr.kind == ExprKind::Matrix ? values::concatenate(rows) : values::cellLiteral(rows);
}

}  // namespace orrery::shell::eval
