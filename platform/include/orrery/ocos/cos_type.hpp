// Declared types of properties and method arguments, and the conversion of
// interpreter values to them.
#pragma once

#include <orrery/export.hpp>
#include <orrery/ocos/cos_name.hpp>
#include <orrery/value/value_array.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace orrery::ocos {

/// What a type text stands for.
enum class COSTypeKind {
    AsciiString,    ///< "asciiString": text of ASCII characters, handed over as narrow text
    UnicodeString,  ///< "unicodeString": text, handed over as UTF-16
    Cell,           ///< "cell": any cell array
    Struct,         ///< "struct": any struct array
    Double,         ///< "double": any double array
    DoubleScalar,   ///< "double scalar": a 1-by-1 double, handed over as a number
    Logical,        ///< "logical": any logical array
    LogicalScalar,  ///< "logical scalar": a 1-by-1 logical, handed over as a flag
    Class           ///< a class name: an object array of exactly that class
};

/// A value converted to a declared type: narrow text for asciiString, UTF-16 for
/// unicodeString, a number for "double scalar", a flag for "logical scalar", and
/// the array itself for every other type.
using PropertyValue = std::variant<value::ValueArray, std::string, std::u16string, double, bool>;

/// A declared type: its interned text and what the text stands for.
class ORRERY_API COSType {
public:
    /// Parses a type text: one of the built-in texts, or a dotted class name
    /// ("pkg.Thing", "message"). Anything else is a fault of the class's
    /// description: an internal error (except::InternalError).
    explicit COSType(std::string_view text);

    COSName text() const noexcept { return text_; }
    COSTypeKind kind() const noexcept { return kind_; }
    bool isClass() const noexcept { return kind_ == COSTypeKind::Class; }

    /// The value converted to this type, or nothing when the value does not match.
    ///
    /// Text types take a char row, the 0-by-0 char array or a string scalar;
    /// asciiString also takes a missing string (as empty text) and refuses
    /// characters above 127; unicodeString refuses a missing string. The scalar
    /// types take only 1-by-1 arrays of their own class: there is no conversion
    /// between numbers and logicals, so a wrong value is reported, not coerced.
    std::optional<PropertyValue> convert(const value::ValueArray& value) const;

    /// True when convert would succeed.
    bool accepts(const value::ValueArray& value) const;

private:
    COSName text_;
    COSTypeKind kind_;
};

/// Checks that a class-name type names a known class: the class being described
/// (describingClass) or one registered with the class system. Built-in types
/// always pass. An unknown class is a fault of the description: an internal error (except::InternalError).
ORRERY_API void validateType(const COSType& type, std::string_view describingClass);

/// True for a dotted name whose components start with a letter and continue
/// with letters, digits or underscores ("orrery.internal.diagnostic.Warning").
ORRERY_API bool isValidDottedName(std::string_view name);

}  // namespace orrery::ocos
