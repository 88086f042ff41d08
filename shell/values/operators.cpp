// Arithmetic, comparison and logical operators on built-in values.
#include "shell/values/operators.hpp"

#include "shell/values/broadcast.hpp"
#include "shell/values/elements.hpp"
#include "shell/values/value_messages.hpp"

#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cmath>
#include <span>

namespace orrery::shell::values {
namespace {

using lang::Op;
using value::ClassId;
using value::Dims;
using value::ValueArray;

struct OperatorName {
    Op op;
    std::string_view spelling;
    std::string_view function;
};

constexpr OperatorName kOperatorNames[] = {
    {Op::Plus, "+", "plus"},
    {Op::Minus, "-", "minus"},
    {Op::Not, "~", "not"},
    {Op::Times, "*", "mtimes"},
    {Op::Divide, "/", "mrdivide"},
    {Op::LeftDivide, "\\", "mldivide"},
    {Op::Power, "^", "mpower"},
    {Op::ElementTimes, ".*", "times"},
    {Op::ElementDivide, "./", "rdivide"},
    {Op::ElementLeftDivide, ".\\", "ldivide"},
    {Op::ElementPower, ".^", "power"},
    {Op::Equal, "==", "eq"},
    {Op::NotEqual, "~=", "ne"},
    {Op::Less, "<", "lt"},
    {Op::LessEqual, "<=", "le"},
    {Op::Greater, ">", "gt"},
    {Op::GreaterEqual, ">=", "ge"},
    {Op::And, "&", "and"},
    {Op::Or, "|", "or"},
    {Op::AndAnd, "&&", ""},
    {Op::OrOr, "||", ""},
};

const OperatorName& nameOf(Op op) {
    for (const auto& entry : kOperatorNames)
        if (entry.op == op) return entry;
    return kOperatorNames[0];
}

bool isComparison(Op op) {
    return op == Op::Equal || op == Op::NotEqual || op == Op::Less || op == Op::LessEqual || op == Op::Greater ||
           op == Op::GreaterEqual;
}

[[noreturn]] void unsupported(Op op, const ValueArray& a, const ValueArray& b) {
    except::throwMessage(UnsupportedOperation(text::asciiToUtf16(nameOf(op).spelling),
                                              text::asciiToUtf16(a.className()), text::asciiToUtf16(b.className())));
}

double applyScalar(Op op, double x, double y) {
    switch (op) {
        case Op::Plus: return x + y;
        case Op::Minus: return x - y;
        case Op::Times:
        case Op::ElementTimes: return x * y;
        case Op::Divide:
        case Op::ElementDivide: return x / y;
        case Op::LeftDivide:
        case Op::ElementLeftDivide: return y / x;
        case Op::Power:
        case Op::ElementPower: return std::pow(x, y);
        case Op::Equal: return x == y;
        case Op::NotEqual: return x != y;
        case Op::Less: return x < y;
        case Op::LessEqual: return x <= y;
        case Op::Greater: return x > y;
        case Op::GreaterEqual: return x >= y;
        case Op::And: return x != 0 && y != 0;
        case Op::Or: return x != 0 || y != 0;
        default: return 0;
    }
}

// The class of an arithmetic result: an integer class wins (two different
// integer classes do not mix), then single, else double.
ClassId arithmeticClass(Op op, const ValueArray& a, const ValueArray& b) {
    const ClassId x = a.classId();
    const ClassId y = b.classId();
    if (value::isIntegerClass(x) && value::isIntegerClass(y) && x != y) unsupported(op, a, b);
    if (value::isIntegerClass(x)) return x;
    if (value::isIntegerClass(y)) return y;
    if (x == ClassId::Single || y == ClassId::Single) return ClassId::Single;
    return ClassId::Double;
}

ValueArray elementWise(Op op, const ValueArray& a, const ValueArray& b) {
    const bool logicalResult = isComparison(op) || op == Op::And || op == Op::Or;
    const ClassId resultClass = logicalResult ? ClassId::Logical : arithmeticClass(op, a, b);
    const Broadcast shape(a.dims(), b.dims());
    ValueArray result = ValueArray::zeros(resultClass, shape.dims());
    for (std::size_t i = 0; i < result.numel(); ++i)
        result.setRealAt(i, applyScalar(op, a.realAt(shape.left(i)), b.realAt(shape.right(i))));
    return result;
}

ValueArray matrixProduct(const ValueArray& a, const ValueArray& b) {
    if (a.ndims() > 2 || b.ndims() > 2) except::throwMessage(TransposeDimensions());
    const std::size_t rows = a.dims().rows();
    const std::size_t inner = a.dims().cols();
    const std::size_t cols = b.dims().cols();
    if (inner != b.dims().rows()) except::throwMessage(InnerDimensions(inner, b.dims().rows()));
    checkElementCount(static_cast<double>(rows) * static_cast<double>(cols));
    ValueArray result = ValueArray::zeros(arithmeticClass(Op::Times, a, b), Dims{rows, cols});
    for (std::size_t r = 0; r < rows; ++r) {
        for (std::size_t c = 0; c < cols; ++c) {
            double sum = 0;
            for (std::size_t k = 0; k < inner; ++k) sum += a.realAt(k * rows + r) * b.realAt(c * inner + k);
            result.setRealAt(c * rows + r, sum);
        }
    }
    return result;
}

// Strings: + joins texts, comparisons compare texts; a char row counts as one text.
ValueArray asStrings(const ValueArray& v) {
    if (v.is(ClassId::String)) return v;
    if (v.is(ClassId::Char) || isNumberLike(v)) return convertTo(v, ClassId::String);
    return ValueArray();
}

ValueArray stringOperation(Op op, const ValueArray& a, const ValueArray& b) {
    if (op != Op::Plus && !isComparison(op)) unsupported(op, a, b);
    const ValueArray x = asStrings(a);
    const ValueArray y = asStrings(b);
    if (!x.is(ClassId::String) || !y.is(ClassId::String)) unsupported(op, a, b);
    const Broadcast shape(x.dims(), y.dims());
    ValueArray result = op == Op::Plus ? blankLike(x, shape.dims()) : ValueArray::zeros(ClassId::Logical, shape.dims());
    for (std::size_t i = 0; i < result.numel(); ++i) {
        const auto& left = x.stringAt(shape.left(i));
        const auto& right = y.stringAt(shape.right(i));
        if (op == Op::Plus) {
            result.setStringAt(i, left && right ? std::optional(*left + *right) : std::nullopt);
        } else if (left && right) {
            const int order = left->compare(*right);
            result.setLogicalAt(i, applyScalar(op, order, 0) != 0);
        } else {
            result.setLogicalAt(i, op == Op::NotEqual);
        }
    }
    return result;
}

}  // namespace

std::string_view operatorSpelling(Op op) { return nameOf(op).spelling; }
std::string_view operatorFunction(Op op) { return nameOf(op).function; }

ValueArray binaryOperation(Op op, const ValueArray& a, const ValueArray& b) {
    // two double scalars, the commonest operands, without shapes or class rules
    if (a.is(ClassId::Double) && b.is(ClassId::Double) && a.isScalar() && b.isScalar()) {
        const double result = applyScalar(op, a.realAt(0), b.realAt(0));
        const bool logicalResult = isComparison(op) || op == Op::And || op == Op::Or;
        return logicalResult ? ValueArray::logicalScalar(result != 0) : ValueArray::scalar(result);
    }
    if (a.is(ClassId::String) || b.is(ClassId::String)) return stringOperation(op, a, b);
    if (!isNumberLike(a) || !isNumberLike(b)) unsupported(op, a, b);
    const bool scalarOperand = a.isScalar() || b.isScalar();
    switch (op) {
        case Op::Times: return scalarOperand ? elementWise(op, a, b) : matrixProduct(a, b);
        case Op::Divide:
            if (!b.isScalar()) except::throwMessage(MatrixOperation(u"/", u"./"));
            break;
        case Op::LeftDivide:
            if (!a.isScalar()) except::throwMessage(MatrixOperation(u"\\", u".\\"));
            break;
        case Op::Power:
            if (!a.isScalar() || !b.isScalar()) except::throwMessage(MatrixOperation(u"^", u".^"));
            break;
        default: break;
    }
    return elementWise(op, a, b);
}

ValueArray unaryOperation(Op op, const ValueArray& a) {
    if (!isNumberLike(a)) unsupported(op, a, a);
    const bool keepsClass = a.isNumeric();
    const ClassId resultClass = op == Op::Not ? ClassId::Logical : keepsClass ? a.classId() : ClassId::Double;
    ValueArray result = ValueArray::zeros(resultClass, a.dims());
    for (std::size_t i = 0; i < a.numel(); ++i) {
        const double x = a.realAt(i);
        result.setRealAt(i, op == Op::Minus ? -x : op == Op::Not ? (x == 0 ? 1.0 : 0.0) : x);
    }
    return result;
}

ValueArray transpose(const ValueArray& a) {
    if (a.ndims() > 2) except::throwMessage(TransposeDimensions());
    const std::size_t rows = a.dims().rows();
    const std::size_t cols = a.dims().cols();
    ValueArray result = blankLike(a, Dims{cols, rows});
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t c = 0; c < cols; ++c) copyElement(result, r * cols + c, a, c * rows + r);
    return result;
}

ValueArray makeRange(const ValueArray& start, const ValueArray* step, const ValueArray& stop) {
    for (const ValueArray* bound : {&start, step, &stop}) {
        if (bound == nullptr) continue;
        if (!isNumberLike(*bound)) except::throwMessage(BadRange());
        if (bound->isEmpty()) return ValueArray::zeros(ClassId::Double, Dims{1, 0});
    }
    const double first = start.realAt(0);
    const double by = step != nullptr ? step->realAt(0) : 1.0;
    const double last = stop.realAt(0);
    if (std::isnan(first) || std::isnan(by) || std::isnan(last) || by == 0 || (last - first) / by < 0)
        return ValueArray::zeros(ClassId::Double, Dims{1, 0});
    const double span = std::floor((last - first) / by * (1 + 1e-12) + 1e-10);
    checkElementCount(span + 1);
    const std::size_t count = wholeCount(span + 1).value_or(0);
    const bool chars = start.is(ClassId::Char) && stop.is(ClassId::Char);
    ValueArray result = ValueArray::zeros(chars ? ClassId::Char : ClassId::Double, Dims{1, count});
    if (chars) {
        for (std::size_t k = 0; k < count; ++k) result.setRealAt(k, first + static_cast<double>(k) * by);
        return result;
    }
    // A for loop's range is made whole before the loop runs: written straight into its data.
    const std::span<double> data = result.mutableData<double>();
    for (std::size_t k = 0; k < count; ++k) data[k] = first + static_cast<double>(k) * by;
    return result;
}

bool isTrue(const ValueArray& condition) {
    if (!isNumberLike(condition)) {
        except::throwMessage(ConditionClass(text::asciiToUtf16(condition.className())));
    }
    if (condition.isEmpty()) return false;
    for (std::size_t i = 0; i < condition.numel(); ++i) {
        const double x = condition.realAt(i);
        if (std::isnan(x)) except::throwMessage(except::host::NotLogicalConvertible());
        if (x == 0) return false;
    }
    return true;
}

}  // namespace orrery::shell::values
