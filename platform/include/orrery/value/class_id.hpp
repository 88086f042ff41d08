// The classes of interpreter values.
#pragma once

#include <orrery/export.hpp>

#include <cstdint>
#include <string_view>
#include <type_traits>

namespace orrery::value {

/// Class of a ValueArray. Numeric classes come first, in the order the language lists them.
enum class ClassId {
    Double,
    Single,
    Int8,
    UInt8,
    Int16,
    UInt16,
    Int32,
    UInt32,
    Int64,
    UInt64,
    Logical,
    Char,
    String,
    Cell,
    Struct,
    Object
};

/// The language's name of a built-in class ("double", "char", "struct", ...).
ORRERY_API std::string_view className(ClassId id);

/// True for double, single and the eight integer classes.
constexpr bool isNumericClass(ClassId id) { return id <= ClassId::UInt64; }
/// True for the eight integer classes.
constexpr bool isIntegerClass(ClassId id) { return id >= ClassId::Int8 && id <= ClassId::UInt64; }

/// The numeric class whose elements have the C++ type T (double, float, intN_t, uintN_t).
template <class T>
constexpr ClassId classIdOf() {
    if constexpr (std::is_same_v<T, double>)
        return ClassId::Double;
    else if constexpr (std::is_same_v<T, float>)
        return ClassId::Single;
    else if constexpr (std::is_same_v<T, std::int8_t>)
        return ClassId::Int8;
    else if constexpr (std::is_same_v<T, std::uint8_t>)
        return ClassId::UInt8;
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return ClassId::Int16;
    else if constexpr (std::is_same_v<T, std::uint16_t>)
        return ClassId::UInt16;
    else if constexpr (std::is_same_v<T, std::int32_t>)
        return ClassId::Int32;
    else if constexpr (std::is_same_v<T, std::uint32_t>)
        return ClassId::UInt32;
    else if constexpr (std::is_same_v<T, std::int64_t>)
        return ClassId::Int64;
    else {
        static_assert(std::is_same_v<T, std::uint64_t>, "not the element type of a numeric class");
        return ClassId::UInt64;
    }
}

}  // namespace orrery::value
