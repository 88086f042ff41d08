// Property templates: typed properties declared from a getter and a setter on
// the class's own instance type.
#pragma once

#include <orrery/except/internal_error.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/prop_info.hpp>

#include <functional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace orrery::ocos {

/// How a C++ value type meets the declared types: which type texts it can stand
/// for and how a read value becomes an interpreter value.
template <class Value>
struct PropertyValueTraits;

template <>
struct PropertyValueTraits<std::string> {
    static bool fits(COSTypeKind kind) { return kind == COSTypeKind::AsciiString; }
    static value::ValueArray toValue(const std::string& text) { return value::ValueArray::charsFromUtf8(text); }
};
template <>
struct PropertyValueTraits<std::u16string> {
    static bool fits(COSTypeKind kind) { return kind == COSTypeKind::UnicodeString; }
    static value::ValueArray toValue(const std::u16string& text) { return value::ValueArray::chars(text); }
};
template <>
struct PropertyValueTraits<double> {
    static bool fits(COSTypeKind kind) { return kind == COSTypeKind::DoubleScalar; }
    static value::ValueArray toValue(double number) { return value::ValueArray::scalar(number); }
};
template <>
struct PropertyValueTraits<bool> {
    static bool fits(COSTypeKind kind) { return kind == COSTypeKind::LogicalScalar; }
    static value::ValueArray toValue(bool flag) { return value::ValueArray::logicalScalar(flag); }
};
template <>
struct PropertyValueTraits<value::ValueArray> {
    static bool fits(COSTypeKind kind) {
        return kind == COSTypeKind::Cell || kind == COSTypeKind::Struct || kind == COSTypeKind::Double ||
               kind == COSTypeKind::Logical || kind == COSTypeKind::Class;
    }
    static value::ValueArray toValue(value::ValueArray array) { return array; }
};

/// The instance as the class's own type; any other type is a fault of the
/// class system's caller: an internal error (except::InternalError).
template <class Instance>
Instance& instanceAs(COSObject& instance) {
    auto* typed = dynamic_cast<Instance*>(&instance);
    if (typed == nullptr)
        except::internalError("class system", std::string("instance is not a ") + typeid(Instance).name());
    return *typed;
}
template <class Instance>
const Instance& instanceAs(const COSObject& instance) {
    const auto* typed = dynamic_cast<const Instance*>(&instance);
    if (typed == nullptr)
        except::internalError("class system", std::string("instance is not a ") + typeid(Instance).name());
    return *typed;
}

namespace detail {

template <class Instance, class Get>
using PropertyValueOf = std::remove_cvref_t<std::invoke_result_t<Get&, const Instance&>>;

template <class Value>
void checkFits(std::string_view name, std::string_view typeText) {
    if (!PropertyValueTraits<Value>::fits(COSType(typeText).kind())) {
        except::internalError("class system", "property \"" + std::string(name) + "\" of type \"" +
                                                  std::string(typeText) + "\" has accessors of another value type");
    }
}

template <class Instance, class Get>
COSPropInfo::Getter makeGetter(Get get) {
    using Value = PropertyValueOf<Instance, Get>;
    return [get = std::move(get)](const COSObject& instance) {
        return PropertyValueTraits<Value>::toValue(std::invoke(get, instanceAs<Instance>(instance)));
    };
}

}  // namespace detail

/// A readable and writable property. get is called with a const Instance& and
/// returns std::string (asciiString), std::u16string (unicodeString), double
/// ("double scalar"), bool ("logical scalar") or ValueArray (the other types);
/// set is called with an Instance& and a value of the same type. Member function
/// pointers work for both. A type text that does not fit the value type is a
/// fault of the description: an internal error (except::InternalError).
template <class Instance, class Get, class Set>
COSPropInfo makeProperty(std::string_view name, std::string_view typeText, Get get, Set set) {
    using Value = detail::PropertyValueOf<Instance, Get>;
    detail::checkFits<Value>(name, typeText);
    COSPropInfo::Setter setter = [set = std::move(set)](COSObject& instance, PropertyValue converted) {
        std::invoke(set, instanceAs<Instance>(instance), std::get<Value>(std::move(converted)));
    };
    return COSPropInfo(name, typeText, detail::makeGetter<Instance>(std::move(get)), std::move(setter));
}

/// A read-only property; get as for makeProperty.
template <class Instance, class Get>
COSPropInfo makeReadOnlyProperty(std::string_view name, std::string_view typeText, Get get) {
    detail::checkFits<detail::PropertyValueOf<Instance, Get>>(name, typeText);
    return COSPropInfo(name, typeText, detail::makeGetter<Instance>(std::move(get)));
}

}  // namespace orrery::ocos
