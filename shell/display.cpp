// Display of values after statements without a semicolon, and disp.
#include "shell/display.hpp"

#include "shell/display/body.hpp"
#include "shell/display/number_format.hpp"

#include <orrery/text/text.hpp>

namespace orrery::shell {
namespace {

using value::ClassId;
using value::ValueArray;

bool isNumberLike(const ValueArray& value) { return value.isNumeric() || value.is(ClassId::Logical); }

bool isCharRow(const ValueArray& value) { return value.is(ClassId::Char) && value.isTextScalar(); }

std::string stringElement(const ValueArray& strings, std::size_t i, bool quoted) {
    const auto& element = strings.stringAt(i);
    if (!element) return "<missing>";
    const std::string text = text::utf16ToUtf8Lossy(*element);
    return quoted ? "\"" + text + "\"" : text;
}

// The text after "name = " for values shown on one line, or nothing.
std::string oneLineText(const ValueArray& value) {
    const bool emptyShownBySize = value.isEmpty() && !value.is(ClassId::Struct);
    if (emptyShownBySize) return value.dims().text() + " empty " + value.className();
    if (isNumberLike(value) && value.isScalar()) return render::formatAll(value)[0];
    if (isCharRow(value)) return "'" + text::utf16ToUtf8Lossy(value.chars()) + "'";
    if (value.is(ClassId::String) && value.isScalar()) return stringElement(value, 0, true);
    return {};
}

}  // namespace

std::string displayText(std::string_view name, const ValueArray& value) {
    const std::string line = oneLineText(value);
    if (!line.empty()) return std::string(name) + " = " + line + "\n";
    return std::string(name) + " =\n" + render::valueBody(value);
}

std::string dispText(const ValueArray& value) {
    if (value.isEmpty() && !value.is(ClassId::Struct) && !value.is(ClassId::Object)) return {};
    if (isNumberLike(value)) {
        return value.isScalar() ? render::formatAll(value)[0] + "\n" : render::numberRows(value);
    }
    if (value.is(ClassId::Char)) return render::charRows(value, false);
    if (value.is(ClassId::String) && value.isScalar()) return stringElement(value, 0, false) + "\n";
    if (value.is(ClassId::String)) return render::stringRows(value);
    if (value.is(ClassId::Cell)) return render::cellRows(value);
    if (value.is(ClassId::Struct) && value.isScalar()) return render::structFields(value, 0);
    return render::valueBody(value);
}

}  // namespace orrery::shell
