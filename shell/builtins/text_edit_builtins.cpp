// Built-ins that make and change text: num2str, upper, lower, strrep, strtrim,
// strsplit, strjoin.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace orrery::shell::builtins {
namespace {

// ---- one text in, one text out ---------------------------------------------------

// change(text) of a char row or of each element of a string array; a char matrix
// keeps its size when the change keeps each length.
template <std::u16string (*Change)(std::u16string_view)>
ValueArray changeText(const ValueArray& x, std::string_view function) {
    if (x.is(ClassId::String)) {
        ValueArray result = x;
        for (std::size_t i = 0; i < x.numel(); ++i)
            if (const auto& text = x.stringAt(i)) result.setStringAt(i, Change(*text));
        return result;
    }
    if (!x.is(ClassId::Char)) except::throwMessage(messages::NotText(text::utf8ToUtf16(function), 1.0));
    std::u16string changed = Change(x.chars());
    if (changed.size() == x.numel()) return ValueArray::charArray(x.dims(), std::move(changed));
    if (x.dims().rows() > 1) except::throwMessage(messages::NotText(text::utf8ToUtf16(function), 1.0));
    return ValueArray::chars(changed);
}

std::u16string upper(std::u16string_view text) { return text::toUpperCase(text); }
std::u16string lower(std::u16string_view text) { return text::toLowerCase(text); }

bool isBlank(char16_t c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f'; }

std::u16string trimmed(std::u16string_view text) {
    std::size_t first = 0;
    std::size_t last = text.size();
    while (first < last && isBlank(text[first])) ++first;
    while (last > first && isBlank(text[last - 1])) --last;
    return std::u16string(text.substr(first, last - first));
}

void bnUpper(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(changeText<upper>(*prhs[0], "upper"));
}

void bnLower(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(changeText<lower>(*prhs[0], "lower"));
}

// A text in the kind it came in: a string stays a string.
ValueArray textLike(const ValueArray& model, std::u16string_view text) {
    return model.is(ClassId::String) ? ValueArray::string(text) : ValueArray::chars(text);
}

void bnStrtrim(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const ValueArray& x = *prhs[0];
    if (x.is(ClassId::Cell)) {
        ValueArray result = ValueArray::cell(x.dims());
        for (std::size_t i = 0; i < x.numel(); ++i)
            result.setCellAt(i, textLike(x.cellAt(i), trimmed(textArgument(x.cellAt(i), "strtrim", 1))));
        plhs[0] = makeValue(std::move(result));
        return;
    }
    plhs[0] = makeValue(textLike(x, trimmed(textArgument(x, "strtrim", 1))));
}

void bnStrrep(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 3, 3);
    const std::u16string text = textArgument(*prhs[0], "strrep", 1);
    const std::u16string from = textArgument(*prhs[1], "strrep", 2);
    const std::u16string to = textArgument(*prhs[2], "strrep", 3);
    // Every occurrence is replaced, overlapping ones too: "2222" with "22" gives three.
    std::u16string result;
    std::size_t copied = 0;
    for (std::size_t found = from.empty() ? std::u16string::npos : text.find(from); found != std::u16string::npos;
         found = text.find(from, found + 1)) {
        if (found > copied) result.append(text, copied, found - copied);
        result.append(to);
        copied = std::max(copied, found + from.size());
    }
    result.append(text, std::min(copied, text.size()));
    plhs[0] = makeValue(textLike(*prhs[0], result));
}

// ---- splitting and joining --------------------------------------------------------

// strsplit(text) splits at runs of blanks, strsplit(text, delimiter) at runs of
// the delimiter; the parts are a 1-by-N cell of char rows.
void bnStrsplit(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 2);
    const std::u16string text = textArgument(*prhs[0], "strsplit", 1);
    const std::u16string delimiter = nrhs > 1 ? textArgument(*prhs[1], "strsplit", 2) : std::u16string();
    if (nrhs > 1 && delimiter.empty()) except::throwMessage(messages::NotText(u"strsplit", 2.0));
    const auto delimiterAt = [&](std::size_t i) -> std::size_t {
        if (delimiter.empty()) return isBlank(text[i]) ? 1 : 0;
        return text.compare(i, delimiter.size(), delimiter) == 0 ? delimiter.size() : 0;
    };
    std::vector<std::u16string> parts(1);
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = delimiterAt(i);
        if (length == 0) {
            parts.back() += text[i++];
            continue;
        }
        while (i < text.size() && delimiterAt(i) > 0) i += delimiterAt(i);  // a run counts as one
        parts.emplace_back();
    }
    ValueArray result = ValueArray::cell(value::Dims{1, parts.size()});
    for (std::size_t i = 0; i < parts.size(); ++i) result.setCellAt(i, ValueArray::chars(parts[i]));
    plhs[0] = makeValue(std::move(result));
}

void bnStrjoin(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 2);
    const ValueArray& parts = *prhs[0];
    if (!parts.is(ClassId::Cell)) except::throwMessage(messages::NotCellOfText(u"strjoin"));
    const std::u16string delimiter = nrhs > 1 ? textArgument(*prhs[1], "strjoin", 2) : std::u16string(u" ");
    std::u16string joined;
    for (std::size_t i = 0; i < parts.numel(); ++i) {
        if (!parts.cellAt(i).isTextScalarTolerant()) except::throwMessage(messages::NotCellOfText(u"strjoin"));
        if (i > 0) joined += delimiter;
        joined += parts.cellAt(i).textView();
    }
    plhs[0] = makeValue(ValueArray::chars(joined));
}

// ---- numbers as text ---------------------------------------------------------------

// Whole numbers in full; others with four decimals beyond the integer digits
// (3.1416), or with the significant digits asked for.
std::string numberText(double x, int significant) {
    if (std::isnan(x)) return "NaN";
    if (std::isinf(x)) return x < 0 ? "-Inf" : "Inf";
    char buffer[64];
    if (significant <= 0 && x == std::floor(x) && std::fabs(x) < 1e15) {
        std::snprintf(buffer, sizeof buffer, "%.0f", x);
    } else {
        const int digits =
            significant > 0 ? significant : std::max(static_cast<int>(std::floor(std::log10(std::fabs(x)))), 0) + 5;
        std::snprintf(buffer, sizeof buffer, "%.*g", std::min(digits, 17), x);
    }
    return buffer;
}

// Each row of the array on one line: columns right-aligned to the widest, two
// blanks apart; the lines are the rows of a char matrix.
void bnNum2str(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 2);
    const ValueArray& x = *prhs[0];
    if (x.is(ClassId::Char) || x.is(ClassId::String)) {
        plhs[0] = makeValue(x);
        return;
    }
    requireNumeric(x, "num2str");
    int significant = 0;
    if (nrhs > 1) {
        const double asked = prhs[1]->isScalar() && prhs[1]->isNumeric() ? prhs[1]->realAt(0) : 0;
        if (!(asked >= 1 && asked <= 17) || asked != std::floor(asked))
            except::throwMessage(messages::BadCount(u"num2str"));
        significant = static_cast<int>(asked);
    }
    if (x.ndims() > 2) except::throwMessage(messages::NotMatrix(u"num2str"));
    const std::size_t rows = x.dims().rows();
    const std::size_t cols = x.dims().cols();
    std::vector<std::string> cells(x.numel());
    std::vector<std::size_t> widths(cols, 0);
    for (std::size_t i = 0; i < x.numel(); ++i) {
        cells[i] = numberText(x.realAt(i), significant);
        std::size_t& width = widths[i / rows];  // rows > 0: an array with elements has rows
        width = std::max(width, cells[i].size());
    }
    std::vector<std::string> lines(rows);
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t c = 0; c < cols; ++c) {
            if (c > 0) lines[r] += "  ";
            lines[r] += std::string(widths[c] - cells[c * rows + r].size(), ' ') + cells[c * rows + r];
        }
    if (rows == 1 || x.isEmpty()) {
        plhs[0] = makeValue(ValueArray::charsFromUtf8(rows == 1 ? lines[0] : ""));
        return;
    }
    std::u16string units(rows * lines[0].size(), u' ');
    for (std::size_t r = 0; r < rows; ++r)
        for (std::size_t k = 0; k < lines[r].size(); ++k) units[k * rows + r] = static_cast<char16_t>(lines[r][k]);
    plhs[0] = makeValue(ValueArray::charArray(value::Dims{rows, lines[0].size()}, std::move(units)));
}

constexpr BuiltinEntry table[] = {
    {"num2str", bnNum2str}, {"upper", bnUpper},       {"lower", bnLower},     {"strrep", bnStrrep},
    {"strtrim", bnStrtrim}, {"strsplit", bnStrsplit}, {"strjoin", bnStrjoin},
};

}  // namespace

std::span<const BuiltinEntry> textEditBuiltins() { return table; }

}  // namespace orrery::shell::builtins
