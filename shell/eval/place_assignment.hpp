// Assigning to a place inside a value (x(i), s.a{k}.b, ...), changing the value
// where it lies: its data is copied only when it is shared.
#pragma once

#include "shell/lang/ast.hpp"
#include "shell/values/indexing.hpp"

#include <orrery/value/value_array.hpp>

#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace orrery::shell::eval {

/// One step into a value, its index arguments and field name already known.
/// Moving one moves its inline index arguments one by one, and values move
/// without throwing.
struct AssignStep {                                   // NOLINT(bugprone-exception-escape)
    lang::SuffixKind kind = lang::SuffixKind::Paren;  // Field for static and dynamic fields alike
    std::string field;
    values::IndexArgs args;
};

/// The steps of one assignment's target, outermost first.
using AssignSteps = boost::container::small_vector<AssignStep, 1>;

/// True for a value a field or brace assignment replaces: the empty double,
/// which also stands for a place that does not exist yet.
bool isFreshPlace(const value::ValueArray& v);

/// Raises the error for a field assignment into v: a value without fields, or
/// a struct or object array of other than one element.
void requireFieldHolder(const value::ValueArray& v, const std::string& field);

/// Raises the error for a brace assignment into v when it is not a cell.
void requireCellPlace(const value::ValueArray& v);

/// Assigns rhs to steps[k..] of place. No user code runs, and place is left as
/// it was when an error is raised.
void assignPlace(value::ValueArray& place, const AssignSteps& steps, std::size_t k, value::ValueArray rhs);

}  // namespace orrery::shell::eval
