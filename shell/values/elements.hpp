// Element-level building blocks shared by indexing, assignment and
// concatenation: blank arrays of a class, element copies and class conversion.
#pragma once

#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <optional>

namespace orrery::shell::values {

/// The most elements an array made by the language may have.
inline constexpr std::size_t kMaxElements = std::size_t{1} << 27;

/// The element limit in force: kMaxElements unless lowered by setElementLimit.
std::size_t elementLimit() noexcept;

/// Lowers (or restores) the element limit for the whole process, to at most
/// kMaxElements: for running untrusted programs in bounded memory.
void setElementLimit(std::size_t limit) noexcept;

/// Raises "ORRERY:shell:arrayTooLarge" when an array of that many elements
/// would exceed the element limit.
void checkElementCount(double count);

/// The one conversion of a double to a size, dimension or index: x when it is
/// a whole number from 0 to the element limit. NaN, infinities, fractions and
/// negatives give nothing (the caller raises its own error); a larger whole
/// number raises "ORRERY:shell:sizeTooLarge". Nothing is converted unchecked.
std::optional<std::size_t> wholeCount(double x);

/// An array of the class of `proto` (with its fields, or its object class) and
/// the given size, holding default elements: zeros, empty texts, empty cells,
/// unset fields, invalid objects.
value::ValueArray blankLike(const value::ValueArray& proto, value::Dims dims);

/// Copies element `from` of src into element `to` of dst. Both have the same
/// class, or both are numeric, logical or char (the number is converted with
/// dst's rounding and saturation). Struct fields missing from dst are added.
void copyElement(value::ValueArray& dst, std::size_t to, const value::ValueArray& src, std::size_t from);

/// Column c of an array as a rows-by-1 array of its class: what a for loop
/// gives its variable in each pass.
value::ValueArray columnOf(const value::ValueArray& array, std::size_t c);

/// True for numeric, logical and char values: those that convert to numbers.
bool isNumberLike(const value::ValueArray& v);

/// The value converted to the class: between number-like classes element by
/// element; char rows and numbers to string; anything to cell by wrapping it in
/// a 1-by-1 cell. A conversion that does not exist raises the concatenation
/// class error naming both classes.
value::ValueArray convertTo(const value::ValueArray& v, value::ClassId target);

/// The class of the result of joining number-like classes: an integer class
/// wins, then single, then double, then char; two logicals stay logical.
value::ClassId joinedNumberClass(value::ClassId a, value::ClassId b);

/// Column-major subscripts of linear index i in dims, and back.
std::vector<std::size_t> subscriptsOf(std::size_t i, const value::Dims& dims);
std::size_t linearIndexOf(const std::vector<std::size_t>& subscripts, const value::Dims& dims);

}  // namespace orrery::shell::values
