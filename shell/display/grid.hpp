// Lays out texts in aligned rows and columns.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orrery::shell::render {

/// How a grid is drawn.
struct GridStyle {
    std::string indent;     ///< put before every row
    std::string separator;  ///< put before every column but the first
    bool alignRight;        ///< numbers align right, summaries left
    bool uniformWidth;      ///< one width for all columns rather than one per column
};

/// The rows of a rows-by-columns grid whose texts are given column-major, each
/// row ending with a newline. Left-aligned rows carry no trailing spaces.
std::string layoutGrid(const std::vector<std::string>& texts, std::size_t rows, std::size_t columns,
                       const GridStyle& style);

}  // namespace orrery::shell::render
