// Equality of whole values, as the language's isequal decides it.
#pragma once

#include <orrery/value/value_array.hpp>

namespace orrery::shell::builtins {

/// True when a and b have the same size and equal elements: numbers, logicals and
/// chars compare by value whatever their class (NaN equals nothing), a char row
/// equals the string scalar with its text, cells and structs compare element by
/// element (struct fields in any order, an unset field as []), and objects nested
/// in cells or structs compare through the language function isequal, so that a
/// class's own isequal decides. Top-level objects compare by class, size and
/// instance identity (the function table has already offered them to the class).
bool valuesEqual(const value::ValueArray& a, const value::ValueArray& b);

}  // namespace orrery::shell::builtins
