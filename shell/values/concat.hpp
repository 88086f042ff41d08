// Building arrays from bracket literals: [a, b; c, d] and {a, b; c, d}.
#pragma once

#include <orrery/value/value_array.hpp>

#include <vector>

namespace orrery::shell::values {

/// A row of values, and the rows of a literal.
using ValueRow = std::vector<value::ValueArray>;
using ValueRows = std::vector<ValueRow>;

/// [rows]: the values of each row side by side, the rows on top of each other,
/// in one class (string over cell over struct or object over char over
/// integer, single, double and logical). Empty values take no room. Sizes that
/// do not fit raise "ORRERY:shell:concatenationSize"; classes that do not mix
/// "ORRERY:shell:concatenationClass". An empty literal is the 0-by-0 double.
value::ValueArray concatenate(const ValueRows& rows);

/// {rows}: a cell array holding each value as one element.
value::ValueArray cellLiteral(const ValueRows& rows);

}  // namespace orrery::shell::values
