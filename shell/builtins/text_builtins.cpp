// Built-ins that print and compare text: disp, fprintf, strcmp, strcmpi (sprintf is
// the platform's own).
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"
#include "shell/display.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/sprintf.hpp>
#include <orrery/text/text.hpp>

#include <limits>
#include <optional>
#include <vector>

namespace orrery::shell::builtins {
namespace {

void bnDisp(std::int32_t nlhs, ValueArrayPtr*, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 0, nrhs, 1, 1);
    writeOutput(dispText(*prhs[0]));
}

// The file identifier of fprintf(fid, format, ...): 1 standard output, 2 standard error.
bool writesToErrorOutput(const ValueArray& fid) {
    const double id = fid.realAt(0);
    if (id != 1 && id != 2) except::throwMessage(messages::BadFileIdentifier());
    return id == 2;
}

void bnFprintf(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, anyCount);
    const bool hasFid = prhs[0]->isScalar() && (prhs[0]->isNumeric() || prhs[0]->is(ClassId::Logical));
    const bool toError = hasFid && writesToErrorOutput(*prhs[0]);
    if (hasFid && nrhs < 2) except::throwNotEnoughInputs();
    const std::int32_t skip = hasFid ? 1 : 0;
    const ValueArray formatted = interp::fiSprintf(nrhs - skip, prhs + skip);
    const std::string text = text::utf16ToUtf8(formatted.text());
    if (toError)
        writeErrorOutput(text);
    else
        writeOutput(text);
    if (nlhs > 0) plhs[0] = makeValue(ValueArray::scalar(static_cast<double>(text.size())));
}

// ---- strcmp and strcmpi ------------------------------------------------------

// The texts strcmp compares: one per element of a cell or string array, or the
// one text of a char row. nullopt stands for an element that is not text (or a
// missing string), which equals nothing.
struct TextItems {
    value::Dims dims{1, 1};
    std::vector<std::optional<std::u16string>> items;
    bool isArray = false;
};

std::optional<std::u16string> textOf(const ValueArray& v) {
    if (v.isTextScalarTolerant()) return v.text();
    return std::nullopt;
}

TextItems textItems(const ValueArray& v) {
    TextItems result;
    if (v.is(ClassId::Cell)) {
        result = {v.dims(), {}, true};
        for (std::size_t i = 0; i < v.numel(); ++i) result.items.push_back(textOf(v.cellAt(i)));
    } else if (v.is(ClassId::String)) {
        result = {v.dims(), {}, !v.isScalar()};
        for (std::size_t i = 0; i < v.numel(); ++i) result.items.push_back(v.stringAt(i));
    } else {
        result.items.push_back(textOf(v));
    }
    return result;
}

bool textsEqual(const std::optional<std::u16string>& a, const std::optional<std::u16string>& b, bool ignoreCase) {
    if (!a || !b) return false;
    return ignoreCase ? text::equalsIgnoreCase(*a, *b) : *a == *b;
}

// Two char arrays that are not rows compare whole: same size, same units.
bool charArraysEqual(const ValueArray& a, const ValueArray& b, bool ignoreCase) {
    if (a.dims() != b.dims()) return false;
    return ignoreCase ? text::equalsIgnoreCase(a.chars(), b.chars()) : a.chars() == b.chars();
}

ValueArray compareTexts(const ValueArray& a, const ValueArray& b, bool ignoreCase) {
    if (a.is(ClassId::Char) && b.is(ClassId::Char)) return ValueArray::logicalScalar(charArraysEqual(a, b, ignoreCase));
    const TextItems x = textItems(a);
    const TextItems y = textItems(b);
    if (!x.isArray && !y.isArray) return ValueArray::logicalScalar(textsEqual(x.items[0], y.items[0], ignoreCase));
    const bool xSpreads = x.items.size() == 1 && (!x.isArray || y.isArray);
    const bool ySpreads = y.items.size() == 1 && !xSpreads;
    if (x.isArray && y.isArray && x.dims != y.dims && !xSpreads && !ySpreads)
        except::throwMessage(
            messages::SizeMismatch(text::asciiToUtf16(x.dims.text()), text::asciiToUtf16(y.dims.text())));
    const value::Dims& dims = xSpreads ? y.dims : x.dims;
    ValueArray result = ValueArray::zeros(ClassId::Logical, dims);
    for (std::size_t i = 0; i < result.numel(); ++i)
        result.setLogicalAt(i, textsEqual(x.items[xSpreads ? 0 : i], y.items[ySpreads ? 0 : i], ignoreCase));
    return result;
}

void bnStrcmp(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 2, 2);
    plhs[0] = makeValue(compareTexts(*prhs[0], *prhs[1], false));
}

void bnStrcmpi(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 2, 2);
    plhs[0] = makeValue(compareTexts(*prhs[0], *prhs[1], true));
}

constexpr BuiltinEntry table[] = {
    {"disp", bnDisp},
    {"fprintf", bnFprintf},
    {"strcmp", bnStrcmp},
    {"strcmpi", bnStrcmpi},
};

}  // namespace

std::span<const BuiltinEntry> textBuiltins() { return table; }

}  // namespace orrery::shell::builtins
