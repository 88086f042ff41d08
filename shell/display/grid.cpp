// Aligned rows and columns of texts.
#include "shell/display/grid.hpp"

#include <algorithm>

namespace orrery::shell::render {
namespace {

std::vector<std::size_t> columnWidths(const std::vector<std::string>& texts, std::size_t rows, std::size_t columns,
                                      bool uniform) {
    std::vector<std::size_t> widths(columns, 0);
    for (std::size_t c = 0; c < columns; ++c)
        for (std::size_t r = 0; r < rows; ++r) widths[c] = std::max(widths[c], texts[c * rows + r].size());
    if (uniform && columns > 0) {
        const std::size_t widest = *std::max_element(widths.begin(), widths.end());
        std::fill(widths.begin(), widths.end(), widest);
    }
    return widths;
}

}  // namespace

std::string layoutGrid(const std::vector<std::string>& texts, std::size_t rows, std::size_t columns,
                       const GridStyle& style) {
    const auto widths = columnWidths(texts, rows, columns, style.uniformWidth);
    std::string out;
    for (std::size_t r = 0; r < rows; ++r) {
        std::string line = style.indent;
        for (std::size_t c = 0; c < columns; ++c) {
            const std::string& text = texts[c * rows + r];
            const std::string padding(widths[c] - text.size(), ' ');
            if (c > 0) line += style.separator;
            line += style.alignRight ? padding + text : text + padding;
        }
        if (!style.alignRight) line.erase(line.find_last_not_of(' ') + 1);
        out += line + "\n";
    }
    return out;
}

}  // namespace orrery::shell::render
