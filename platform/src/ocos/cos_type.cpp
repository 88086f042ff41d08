// Parsing of type texts and conversion of values to declared types.
#include <orrery/except/internal_error.hpp>
#include <orrery/ocos/cos_type.hpp>
#include <orrery/ocos/registry.hpp>
#include <orrery/text/identifiers.hpp>
#include <orrery/text/text.hpp>

#include <array>
#include <stdexcept>
#include <utility>

namespace orrery::ocos {

using value::ClassId;
using value::ValueArray;

namespace {

constexpr std::array<std::pair<std::string_view, COSTypeKind>, 8> builtinTypes{{
    {"asciiString", COSTypeKind::AsciiString},
    {"unicodeString", COSTypeKind::UnicodeString},
    {"cell", COSTypeKind::Cell},
    {"struct", COSTypeKind::Struct},
    {"double", COSTypeKind::Double},
    {"double scalar", COSTypeKind::DoubleScalar},
    {"logical", COSTypeKind::Logical},
    {"logical scalar", COSTypeKind::LogicalScalar},
}};

// "string", "char", "int8" and the like name classes of values, never a class
// of the class system, and are not type texts either.
bool isValueClassName(std::string_view text) {
    for (auto id = static_cast<int>(ClassId::Double); id <= static_cast<int>(ClassId::Object); ++id) {
        if (value::className(static_cast<ClassId>(id)) == text) return true;
    }
    return false;
}

COSTypeKind parseKind(std::string_view text) {
    for (const auto& [name, kind] : builtinTypes) {
        if (name == text) return kind;
    }
    // A case variant of a built-in text is a typo, not a class of that name.
    for (const auto& [name, kind] : builtinTypes) {
        if (text::equalsIgnoreCaseAscii(name, text)) {
            except::internalError("class system", "type text \"" + std::string(text) + "\" is misspelt");
        }
    }
    if (!isValidDottedName(text) || isValueClassName(text)) {
        except::internalError("class system", "unknown type text \"" + std::string(text) + "\"");
    }
    return COSTypeKind::Class;
}

std::optional<PropertyValue> toAscii(const ValueArray& value) {
    if (value.is(ClassId::String) && value.isScalar() && !value.stringAt(0)) return std::string();
    if (!value.isTextScalarTolerant()) return std::nullopt;
    const std::u16string units = value.text();
    if (!text::isAscii(units)) return std::nullopt;
    return text::utf16ToAscii(units);
}

std::optional<PropertyValue> toUnicode(const ValueArray& value) {
    if (!value.isTextScalarTolerant()) return std::nullopt;
    return value.text();
}

std::optional<PropertyValue> ifClass(const ValueArray& value, ClassId id) {
    if (!value.is(id)) return std::nullopt;
    return value;
}

}  // namespace

COSType::COSType(std::string_view text) : text_(intern(text)), kind_(parseKind(text)) {}

std::optional<PropertyValue> COSType::convert(const ValueArray& value) const {
    switch (kind_) {
        case COSTypeKind::AsciiString: return toAscii(value);
        case COSTypeKind::UnicodeString: return toUnicode(value);
        case COSTypeKind::Cell: return ifClass(value, ClassId::Cell);
        case COSTypeKind::Struct: return ifClass(value, ClassId::Struct);
        case COSTypeKind::Double: return ifClass(value, ClassId::Double);
        case COSTypeKind::Logical: return ifClass(value, ClassId::Logical);
        case COSTypeKind::DoubleScalar:
            if (!value.is(ClassId::Double) || !value.isScalar()) return std::nullopt;
            return value.realAt(0);
        case COSTypeKind::LogicalScalar:
            if (!value.is(ClassId::Logical) || !value.isScalar()) return std::nullopt;
            return value.logicalAt(0);
        case COSTypeKind::Class:
            if (!value.is(ClassId::Object) || value.className() != text_.view()) return std::nullopt;
            return value;
    }
    return std::nullopt;
}

bool COSType::accepts(const ValueArray& value) const { return convert(value).has_value(); }

void validateType(const COSType& type, std::string_view describingClass) {
    if (!type.isClass() || type.text() == describingClass) return;
    if (!findClass(type.text().view())) {
        except::internalError("class system", "type \"" + type.text().str() + "\" names no registered class");
    }
}

bool isValidDottedName(std::string_view name) {
    for (std::size_t start = 0;;) {
        const std::size_t dot = name.find('.', start);
        if (!text::isIdentifier(name.substr(start, dot - start), text::IdentifierKind::Name)) return false;
        if (dot == std::string_view::npos) return true;
        start = dot + 1;
    }
}

}  // namespace orrery::ocos
