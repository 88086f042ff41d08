// Bodies of numeric, text, cell and struct values.
#include "shell/display/body.hpp"

#include "shell/display/grid.hpp"
#include "shell/display/number_format.hpp"
#include "shell/display/object_display.hpp"
#include "shell/display/summary.hpp"

#include <orrery/text/text.hpp>

#include <algorithm>

namespace orrery::shell::render {
namespace {

using value::ClassId;
using value::ValueArray;

const GridStyle kNumberStyle{"", "   ", true, true};
const GridStyle kCellStyle{"    ", "    ", false, false};
const GridStyle kStringStyle{"    ", "    ", false, false};

// "(:,:,2,1)" for page p (0-based) of an array of more than two dimensions.
std::string pageLabel(const value::Dims& dims, std::size_t page) {
    std::string label = "(:,:";
    for (std::size_t d = 2; d < dims.count(); ++d) {
        label += "," + std::to_string(page % dims[d] + 1);
        page /= dims[d];
    }
    return label + ")";
}

// A matrix with more rows than a screen holds shows its first rows and says how
// many more there are.
constexpr std::size_t kMostRowsShown = 30;
constexpr std::size_t kFirstRowsShown = 20;

std::string moreRowsLine(std::size_t rows) {
    return "    ... " + std::to_string(rows - kFirstRowsShown) + " more rows (" + std::to_string(rows) + " in all)\n";
}

std::string firstRowsGrid(const std::vector<std::string>& texts, std::size_t rows, std::size_t columns,
                          const GridStyle& style) {
    if (rows <= kMostRowsShown) return layoutGrid(texts, rows, columns, style);
    std::vector<std::string> shown;
    shown.reserve(kFirstRowsShown * columns);
    for (std::size_t c = 0; c < columns; ++c)
        for (std::size_t r = 0; r < kFirstRowsShown; ++r) shown.push_back(texts[c * rows + r]);
    return layoutGrid(shown, kFirstRowsShown, columns, style) + moreRowsLine(rows);
}

// The grid of texts (column-major, one per element), page by page when the
// array has more than two dimensions.
std::string pagedGrid(const std::vector<std::string>& texts, const value::Dims& dims, const GridStyle& style) {
    const std::size_t rows = dims.rows();
    const std::size_t columns = dims.cols();
    if (dims.count() == 2) return firstRowsGrid(texts, rows, columns, style);
    const std::size_t pageSize = rows * columns;
    const std::size_t pages = pageSize == 0 ? 0 : texts.size() / pageSize;
    std::string out;
    for (std::size_t p = 0; p < pages; ++p) {
        const std::vector<std::string> page(texts.begin() + static_cast<std::ptrdiff_t>(p * pageSize),
                                            texts.begin() + static_cast<std::ptrdiff_t>((p + 1) * pageSize));
        out += std::string(p == 0 ? "" : "\n") + "  " + pageLabel(dims, p) + " =\n";
        out += firstRowsGrid(page, rows, columns, style);
    }
    return out;
}

std::string sizeLine(const ValueArray& value, std::string_view kind) {
    return "  " + value.dims().text() + " " + std::string(kind) + "\n";
}

std::string fieldNameLines(const ValueArray& structs) {
    std::string out;
    for (const auto& name : structs.fieldNames()) out += "    " + name + "\n";
    return out;
}

std::string structArrayBody(const ValueArray& structs) {
    if (structs.fieldNames().empty()) return "  " + structs.dims().text() + " struct array with no fields.\n";
    return "  " + structs.dims().text() + " struct array with fields:\n" + fieldNameLines(structs);
}

}  // namespace

std::string numberRows(const ValueArray& numbers) {
    GridStyle style = kNumberStyle;
    style.indent = "    ";
    return pagedGrid(formatAll(numbers), numbers.dims(), style);
}

std::string charRows(const ValueArray& chars, bool quoted) {
    const value::Dims& dims = chars.dims();
    const std::u16string_view units = chars.chars();
    const std::size_t rows = dims.rows();
    const std::size_t columns = rows == 0 ? 0 : units.size() / rows;
    std::string out;
    for (std::size_t r = 0; r < rows; ++r) {
        if (r == kFirstRowsShown && rows > kMostRowsShown) {
            out += moreRowsLine(rows);
            break;
        }
        std::u16string row;
        for (std::size_t c = 0; c < columns; ++c) row += units[c * rows + r];
        out += quoted ? "    '" + text::utf16ToUtf8Lossy(row) + "'\n" : text::utf16ToUtf8Lossy(row) + "\n";
    }
    return out;
}

std::string stringRows(const ValueArray& strings) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < strings.numel(); ++i) {
        const auto& element = strings.stringAt(i);
        texts.push_back(element ? "\"" + text::utf16ToUtf8Lossy(*element) + "\"" : "<missing>");
    }
    return pagedGrid(texts, strings.dims(), kStringStyle);
}

std::string cellRows(const ValueArray& cells) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < cells.numel(); ++i) texts.push_back(cellSummary(cells.cellAt(i)));
    return pagedGrid(texts, cells.dims(), kCellStyle);
}

std::string structFields(const ValueArray& structs, std::size_t i) {
    const auto& names = structs.fieldNames();
    std::size_t width = 0;
    for (const auto& name : names) width = std::max(width, name.size());
    std::string out;
    for (const auto& name : names)
        out +=
            "    " + std::string(width - name.size(), ' ') + name + ": " + fieldSummary(structs.field(i, name)) + "\n";
    return out;
}

std::string valueBody(const ValueArray& value) {
    switch (value.classId()) {
        case ClassId::Char: return sizeLine(value, "char array") + charRows(value, true);
        case ClassId::String: return sizeLine(value, "string array") + stringRows(value);
        case ClassId::Cell: return sizeLine(value, "cell array") + cellRows(value);
        case ClassId::Struct:
            if (!value.isScalar()) return structArrayBody(value);
            return value.fieldNames().empty() ? "  struct with no fields.\n"
                                              : "  struct with fields:\n" + structFields(value, 0);
        case ClassId::Object: return objectBody(value);
        case ClassId::Double: return numberRows(value);
        default: return sizeLine(value, value.className() + " array") + numberRows(value);
    }
}

}  // namespace orrery::shell::render
