// Display of objects of the class system: class name and properties.
#pragma once

#include <orrery/value/value_array.hpp>

#include <string>

namespace orrery::shell::render {

/// The body of an object array: for one object "ClassName with properties:"
/// and one line per property; for several, their size, class and the
/// property names.
std::string objectBody(const value::ValueArray& objects);

}  // namespace orrery::shell::render
