// The multi-line bodies of values: what display shows under "name =" and what
// disp shows on its own.
#pragma once

#include <orrery/value/value_array.hpp>

#include <string>

namespace orrery::shell::render {

/// Rows of a numeric or logical array, right-aligned in columns; arrays of
/// more than two dimensions are shown page by page ("(:,:,2) =").
std::string numberRows(const value::ValueArray& numbers);

/// Rows of a char array, quoted or not.
std::string charRows(const value::ValueArray& chars, bool quoted);

/// Rows of a string array, each element quoted ("<missing>" for missing ones).
std::string stringRows(const value::ValueArray& strings);

/// Rows of a cell array, each element summarised in braces.
std::string cellRows(const value::ValueArray& cells);

/// The fields of element i of a struct array, one per line, names right-aligned.
std::string structFields(const value::ValueArray& structs, std::size_t i);

/// The body of any value that does not fit on the "name = ..." line: a line
/// with size and class where the layout needs one, then the elements.
std::string valueBody(const value::ValueArray& value);

}  // namespace orrery::shell::render
