// The display of Warning arrays: one row per warning with its identifier,
// message and time of issue.
#pragma once

#include <orrery/value/value_array.hpp>

#include <string>

namespace orrery::lang::diagnostic {

/// The text that shows a Warning array: a heading with its size, then one row per
/// element in linear order with its position, identifier, message (on one line,
/// cut to a readable length) and time of issue as a local date and time, marked
/// "(off)" when it was issued disabled. Invalid elements show as "<invalid>".
std::string warningTable(const value::ValueArray& objects);

}  // namespace orrery::lang::diagnostic
