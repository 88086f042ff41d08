// One-line summaries of values, as struct fields and cell elements show them.
#pragma once

#include <orrery/value/value_array.hpp>

#include <string>

namespace orrery::shell::render {

/// "RxC class" (for example "2x3 double", "1x1 orrery.Thing").
std::string sizeAndClass(const value::ValueArray& value);

/// The value of a struct field on one line: scalars and short rows as their
/// text ("5", "'abc'", "\"abc\"", "[1 2 3]"), everything else as
/// "[2x3 double]", "{1x2 cell}" or "[1x1 struct]". An unset field is "[]".
std::string fieldSummary(const value::ValueArray* value);

/// A cell element on one line, braced: "{[5]}", "{'abc'}", "{2x2 double}".
std::string cellSummary(const value::ValueArray& value);

}  // namespace orrery::shell::render
