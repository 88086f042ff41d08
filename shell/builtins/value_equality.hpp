// Equality of whole values, as the language's isequal decides it.
#pragma once

#include <orrery/value/value_array.hpp>

namespace orrery::shell::builtins {

/// True when a and b have the same size and equal elements: numbers, logicals and
/// chars compare by value whatever their class (NaN equals nothing), a char row
/// equals the string scalar with its text, cells and structs compare element by
/// element (struct fields in any order, an unset field as []), and objects compare
/// by value: the same class and size, then the class's own isequal decides where
/// it defines one, else each element's property values compare as above.
bool valuesEqual(const value::ValueArray& a, const value::ValueArray& b);

}  // namespace orrery::shell::builtins
