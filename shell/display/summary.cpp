// Inline summaries of values inside structs and cells.
#include "shell/display/summary.hpp"

#include "shell/display/number_format.hpp"

#include <orrery/text/text.hpp>

namespace orrery::shell::render {
namespace {

using value::ClassId;
using value::ValueArray;

// Rows up to this length are shown element by element inside structs and cells.
constexpr std::size_t kInlineRowLimit = 10;

bool isNumberLike(const ValueArray& value) { return value.isNumeric() || value.is(ClassId::Logical); }

bool isShortRow(const ValueArray& value) {
    return value.ndims() == 2 && value.dims().rows() == 1 && value.numel() >= 1 && value.numel() <= kInlineRowLimit;
}

std::string joinedRow(const ValueArray& value) {
    std::string text;
    for (const auto& element : formatAll(value)) text += (text.empty() ? "" : " ") + element;
    return text;
}

std::string quotedString(const ValueArray& value) {
    const auto& element = value.stringAt(0);
    return element ? "\"" + text::utf16ToUtf8Lossy(*element) + "\"" : "<missing>";
}

// The text of values that have one, or nothing for those shown by size and class.
std::string inlineText(const ValueArray& value, bool& bracketed) {
    bracketed = false;
    if (value.is(ClassId::Char) && (value.isTextScalar() || value.dims() == value::Dims{0, 0}))
        return "'" + text::utf16ToUtf8Lossy(value.chars()) + "'";
    if (value.is(ClassId::String) && value.isScalar()) return quotedString(value);
    if (isNumberLike(value) && value.isScalar()) {
        bracketed = true;
        return joinedRow(value);
    }
    if (isNumberLike(value) && isShortRow(value)) {
        bracketed = true;
        return joinedRow(value);
    }
    return {};
}

}  // namespace

std::string sizeAndClass(const ValueArray& value) { return value.dims().text() + " " + value.className(); }

std::string fieldSummary(const ValueArray* value) {
    if (value == nullptr || (value->is(ClassId::Double) && value->dims() == value::Dims{0, 0})) return "[]";
    bool bracketed = false;
    const std::string text = inlineText(*value, bracketed);
    if (!text.empty()) return bracketed && !value->isScalar() ? "[" + text + "]" : text;
    if (value->is(ClassId::Cell)) return "{" + sizeAndClass(*value) + "}";
    return "[" + sizeAndClass(*value) + "]";
}

std::string cellSummary(const ValueArray& value) {
    bool bracketed = false;
    const std::string text = inlineText(value, bracketed);
    if (!text.empty()) return bracketed ? "{[" + text + "]}" : "{" + text + "}";
    return "{" + sizeAndClass(value) + "}";
}

}  // namespace orrery::shell::render
