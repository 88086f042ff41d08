// Built-ins that convert to text: char and string.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

namespace orrery::shell::builtins {
namespace {

[[noreturn]] void cannotConvert(const ValueArray& from, ClassId to) {
    except::throwMessage(
        messages::CannotConvert(text::utf8ToUtf16(from.className()), text::asciiToUtf16(value::className(to))));
}

// ---- char --------------------------------------------------------------------

// Numbers as character codes, of the same size.
ValueArray charCodes(const ValueArray& numbers) {
    ValueArray codes = ValueArray::zeros(ClassId::Char, numbers.dims());
    for (std::size_t i = 0; i < numbers.numel(); ++i) codes.setRealAt(i, numbers.realAt(i));
    return codes;
}

// Rows of equal length, shorter ones padded with blanks, as one char matrix.
ValueArray charMatrix(const std::vector<std::u16string>& rows) {
    std::size_t width = 0;
    for (const auto& row : rows) width = std::max(width, row.size());
    if (rows.empty() || width == 0) return ValueArray::charArray(value::Dims{rows.size(), 0}, {});
    std::u16string units(rows.size() * width, u' ');
    for (std::size_t r = 0; r < rows.size(); ++r)
        for (std::size_t c = 0; c < rows[r].size(); ++c) units[c * rows.size() + r] = rows[r][c];
    return ValueArray::charArray(value::Dims{rows.size(), width}, std::move(units));
}

// The rows of a char array (two dimensions only), left to right.
void appendCharRows(const ValueArray& chars, std::vector<std::u16string>& rows) {
    if (chars.ndims() > 2) cannotConvert(chars, ClassId::Char);
    const std::size_t height = chars.dims().rows();
    const std::size_t width = chars.dims().cols();
    const std::u16string_view units = chars.chars();
    for (std::size_t r = 0; r < height; ++r) {
        std::u16string row(width, u' ');
        for (std::size_t c = 0; c < width; ++c) row[c] = units[c * height + r];
        rows.push_back(std::move(row));
    }
}

void appendRows(const ValueArray& v, std::vector<std::u16string>& rows) {
    if (v.is(ClassId::Char)) return appendCharRows(v, rows);
    if (v.is(ClassId::String)) {
        for (std::size_t i = 0; i < v.numel(); ++i) {
            if (!v.stringAt(i)) cannotConvert(v, ClassId::Char);
            rows.push_back(*v.stringAt(i));
        }
        return;
    }
    if (v.is(ClassId::Cell)) {
        for (std::size_t i = 0; i < v.numel(); ++i) {
            const ValueArray& element = v.cellAt(i);
            if (!element.is(ClassId::Char) && !element.is(ClassId::String)) cannotConvert(element, ClassId::Char);
            appendRows(element, rows);
        }
        return;
    }
    if (!v.isNumeric()) cannotConvert(v, ClassId::Char);
    appendCharRows(charCodes(v), rows);
}

ValueArray toChar(const ValueArray& v) {
    if (v.is(ClassId::Char)) return v;
    if (v.isNumeric()) return charCodes(v);
    if (v.is(ClassId::String) && v.isScalar()) {
        if (!v.stringAt(0)) cannotConvert(v, ClassId::Char);
        return ValueArray::charArray(value::Dims{1, v.stringAt(0)->size()}, *v.stringAt(0));
    }
    std::vector<std::u16string> rows;
    appendRows(v, rows);
    return charMatrix(rows);
}

void bnChar(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    if (nrhs == 1) {
        plhs[0] = makeValue(toChar(*prhs[0]));
        return;
    }
    std::vector<std::u16string> rows;
    for (const ValueArray* v : argumentsOf(nrhs, prhs)) {
        if (v->is(ClassId::Char) && v->isEmpty())
            rows.emplace_back();
        else
            appendRows(*v, rows);
    }
    plhs[0] = makeValue(nrhs == 0 ? ValueArray::chars(u"") : charMatrix(rows));
}

// ---- string ------------------------------------------------------------------

// A number as string() writes it: whole numbers exactly, others to five
// significant digits.
std::u16string numberText(const ValueArray& v, std::size_t i) {
    if (v.is(ClassId::Logical)) return v.logicalAt(i) ? u"true" : u"false";
    const double x = v.realAt(i);
    if (std::isnan(x)) return u"NaN";
    if (std::isinf(x)) return x > 0 ? u"Inf" : u"-Inf";
    char buffer[64];
    const bool whole = x == std::floor(x) && std::fabs(x) < 1e15;
    std::snprintf(buffer, sizeof buffer, whole ? "%.0f" : "%.5g", x);
    return text::asciiToUtf16(buffer);
}

ValueArray toString(const ValueArray& v) {
    if (v.is(ClassId::String)) return v;
    if (v.is(ClassId::Char)) {
        if (v.isTextScalarTolerant()) return ValueArray::string(v.chars());
        std::vector<std::u16string> rows;
        appendCharRows(v, rows);
        return ValueArray::strings(value::Dims{rows.size(), 1}, {rows.begin(), rows.end()});
    }
    std::vector<std::optional<std::u16string>> elements;
    if (v.is(ClassId::Cell)) {
        for (std::size_t i = 0; i < v.numel(); ++i) {
            const ValueArray& element = v.cellAt(i);
            if (!element.isTextScalarTolerant() && !(element.is(ClassId::String) && element.isScalar()))
                cannotConvert(element, ClassId::String);
            elements.push_back(element.is(ClassId::String) ? element.stringAt(0) : element.text());
        }
    } else if (v.isNumeric() || v.is(ClassId::Logical)) {
        for (std::size_t i = 0; i < v.numel(); ++i) elements.push_back(numberText(v, i));
    } else {
        cannotConvert(v, ClassId::String);
    }
    return ValueArray::strings(v.dims(), std::move(elements));
}

void bnString(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, 1);
    plhs[0] = makeValue(nrhs == 0 ? ValueArray::string(u"") : toString(*prhs[0]));
}

constexpr BuiltinEntry table[] = {{"char", bnChar}, {"string", bnString}};

}  // namespace

std::span<const BuiltinEntry> textConversionBuiltins() { return table; }

}  // namespace orrery::shell::builtins
