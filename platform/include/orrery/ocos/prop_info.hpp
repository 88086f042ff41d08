// Property descriptions: a name, a declared type and access to one instance.
#pragma once

#include <orrery/export.hpp>
#include <orrery/ocos/cos_name.hpp>
#include <orrery/ocos/cos_type.hpp>
#include <orrery/value/value_array.hpp>

#include <functional>
#include <string_view>

namespace orrery::ocos {

class COSObject;

/// Describes one property of a class. Every property can be read; a property
/// without a setter is read-only. The class system checks each written value
/// against the declared type before the setter runs, so a setter only ever
/// receives the PropertyValue alternative that its type stands for.
class ORRERY_API COSPropInfo {
public:
    /// Reads the property of an instance as an interpreter value.
    using Getter = std::function<value::ValueArray(const COSObject&)>;
    /// Writes an already converted value into an instance.
    using Setter = std::function<void(COSObject&, PropertyValue)>;

    /// name: a plain identifier; typeText: as COSType accepts it. A bad name, a
    /// bad type text or a missing getter is a fault of the description:
    /// an internal error (except::InternalError). An empty setter makes the property read-only.
    COSPropInfo(std::string_view name, std::string_view typeText, Getter getter, Setter setter = {});

    COSName getName() const noexcept { return name_; }
    const COSType& getType() const noexcept { return type_; }
    bool isReadOnly() const noexcept { return !setter_; }

    /// The property's value in the instance.
    value::ValueArray read(const COSObject& instance) const;

    /// The value converted to the declared type. Raises "ORRERY:ocos:readOnlyProperty"
    /// for a read-only property and "ORRERY:ocos:propertyType" for a value that does
    /// not match; className names the class in those messages.
    PropertyValue accept(const value::ValueArray& value, std::string_view className) const;

    /// Hands a value made by accept to the setter.
    void assign(COSObject& instance, PropertyValue converted) const;

    /// accept, then assign.
    void write(COSObject& instance, const value::ValueArray& value, std::string_view className) const;

private:
    COSName name_;
    COSType type_;
    Getter getter_;
    Setter setter_;
};

}  // namespace orrery::ocos
