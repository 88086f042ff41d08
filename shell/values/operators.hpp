// The language's operators on values of built-in classes: element-wise
// arithmetic with implicit expansion, matrix products, comparisons, logical
// operators, transpose and ranges. Objects are dispatched by the evaluator
// before these are reached.
#pragma once

#include "shell/lang/ast.hpp"

#include <orrery/value/value_array.hpp>

#include <string_view>

namespace orrery::shell::values {

/// The spelling of an operator in messages ("+", ".*", "==").
std::string_view operatorSpelling(lang::Op op);

/// The name of the function an object's class defines for an operator
/// ("plus", "mtimes", "eq"), or empty for && and ||.
std::string_view operatorFunction(lang::Op op);

/// a op b for numeric, logical, char and string values. `*` multiplies
/// matrices when both operands are matrices; `/`, `\` and `^` need a scalar
/// where a matrix operation would be meant. Other classes raise
/// "ORRERY:shell:unsupportedOperation"; sizes that do not expand into each
/// other "ORRERY:shell:sizeMismatch".
value::ValueArray binaryOperation(lang::Op op, const value::ValueArray& a, const value::ValueArray& b);

/// -a, +a and ~a.
value::ValueArray unaryOperation(lang::Op op, const value::ValueArray& a);

/// The transpose of a two-dimensional array of any class.
value::ValueArray transpose(const value::ValueArray& a);

/// start:stop or start:step:stop as a row; an empty bound gives an empty row.
value::ValueArray makeRange(const value::ValueArray& start, const value::ValueArray* step,
                            const value::ValueArray& stop);

/// The truth of a condition: non-empty and every element non-zero. Values
/// that are not numeric, logical or char raise "ORRERY:shell:conditionClass".
bool isTrue(const value::ValueArray& condition);

}  // namespace orrery::shell::values
