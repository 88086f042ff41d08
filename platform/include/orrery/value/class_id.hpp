// The classes of interpreter values.
#pragma once

#include <orrery/export.hpp>

#include <string_view>

namespace orrery::value {

/// Class of a ValueArray. Numeric classes come first, in the order the language lists them.
enum class ClassId {
    Double, Single, Int8, UInt8, Int16, UInt16, Int32, UInt32, Int64, UInt64,
    Logical, Char, String, Cell, Struct, Object
};

/// The language's name of a built-in class ("double", "char", "struct", ...).
ORRERY_API std::string_view className(ClassId id);

/// True for double, single and the eight integer classes.
constexpr bool isNumericClass(ClassId id) { return id <= ClassId::UInt64; }
/// True for the eight integer classes.
constexpr bool isIntegerClass(ClassId id) { return id >= ClassId::Int8 && id <= ClassId::UInt64; }

}  // namespace orrery::value
