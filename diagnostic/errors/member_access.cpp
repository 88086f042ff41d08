// Named members of structure and object arrays.
#include "diagnostic/errors/member_access.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/object_access.hpp>

namespace orrery::diagnostic {

using value::ClassId;
using value::ValueArray;

bool hasMember(const ValueArray& array, std::string_view name) {
    if (array.is(ClassId::Struct)) return array.hasField(name);
    if (!array.is(ClassId::Object)) return false;
    const auto& info = array.classInfo();
    return info && info->findProperty(name) != nullptr;
}

std::optional<ValueArray> memberOf(const ValueArray& array, std::size_t i, std::string_view name) {
    if (array.is(ClassId::Struct)) {
        const ValueArray* field = array.field(i, name);
        return field ? std::optional<ValueArray>(*field) : std::nullopt;
    }
    if (!hasMember(array, name) || !array.isValidElement(i)) return std::nullopt;
    return ocos::getProperty(array, i, name);
}

}  // namespace orrery::diagnostic
