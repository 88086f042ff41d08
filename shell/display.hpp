// Display of values: what a statement without a semicolon prints, and what
// disp prints. Both render to text so that callers choose the destination.
#pragma once

#include <orrery/value/value_array.hpp>

#include <string>
#include <string_view>

namespace orrery::shell {

/// The text shown for `name = value` when a statement is not ended by a
/// semicolon, ending with a newline. Scalars, char rows and string scalars fit
/// on one line ("x = 5", "x = 'text'", "x = \"text\""); empty values give their
/// size and class ("x = 0x0 empty double"); matrices, structs, cells and objects
/// put "name =" on a line of its own and the body below it, indented.
std::string displayText(std::string_view name, const value::ValueArray& value);

/// The text disp shows for a value: the body of displayText without the name,
/// ending with a newline. Char rows print without quotes and string scalars
/// without double quotes; an empty numeric, char or cell value prints nothing.
std::string dispText(const value::ValueArray& value);

}  // namespace orrery::shell
