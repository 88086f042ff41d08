// Named members of structure and object arrays: fields, or declared properties.
#pragma once

#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <optional>
#include <string_view>

namespace orrery::diagnostic {

/// True when a structure array has the field, or an object array's class declares
/// the property. Other values have no members.
bool hasMember(const value::ValueArray& array, std::string_view name);

/// The member of element i (a shared copy): the field when it is set, the property
/// of a valid object element, none otherwise.
std::optional<value::ValueArray> memberOf(const value::ValueArray& array, std::size_t i, std::string_view name);

}  // namespace orrery::diagnostic
