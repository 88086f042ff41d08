// Property access on elements of object arrays, with value semantics: a write
// never shows through another array that shares the instance.
#pragma once

#include <orrery/export.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <memory>
#include <string_view>

namespace orrery::ocos {

/// The instance of element index (zero-based). A value that is not an object
/// array raises "ORRERY:value:wrongClass", an index past the end
/// "ORRERY:value:indexOutOfRange", an element that holds no instance
/// "ORRERY:ocos:invalidElement".
ORRERY_API std::shared_ptr<COSObject> validInstanceAt(const value::ValueArray& objects, std::size_t index);

/// Reads a property of element index. Errors as validInstanceAt, and
/// "ORRERY:ocos:noSuchProperty" for a name the class does not have.
ORRERY_API value::ValueArray getProperty(const value::ValueArray& objects, std::size_t index, std::string_view name);

/// Writes a property of element index. The value is checked against the declared
/// type first ("ORRERY:ocos:propertyType", "ORRERY:ocos:readOnlyProperty"); then,
/// when the instance is shared with another array, the element gets its own
/// clone before the setter runs, so copies made earlier keep their value.
ORRERY_API void setProperty(value::ValueArray& objects, std::size_t index, std::string_view name,
                            const value::ValueArray& value);

/// An object array of the class whose every element is a new instance.
ORRERY_API value::ValueArray newObjectArray(std::shared_ptr<const COSClassInfo> classInfo, value::Dims dims);

}  // namespace orrery::ocos
