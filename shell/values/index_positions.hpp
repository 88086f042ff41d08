// Turning one index argument into element positions, and combining several.
#pragma once

#include "shell/values/indexing.hpp"

#include <cstddef>
#include <vector>

namespace orrery::shell::values {

/// The 0-based positions an argument selects among `extent` places: all of
/// them for ':', the true places of a mask, or the given positive integers
/// (which may lie past the extent; see requireWithin).
std::vector<std::size_t> indexPositions(const IndexArg& arg, std::size_t extent);

/// Raises the out-of-range error when a position is not below the extent;
/// `linear` chooses the one-argument message, `k` is the argument position.
void requireWithin(const std::vector<std::size_t>& positions, std::size_t extent, std::size_t k, bool linear);

/// The linear positions of every combination of per-dimension positions
/// (first dimension fastest) within an array of those extents.
std::vector<std::size_t> cartesianPositions(const std::vector<std::vector<std::size_t>>& lists,
                                            const std::vector<std::size_t>& extents);

/// The size made of the lengths of the lists.
value::Dims listSizes(const std::vector<std::vector<std::size_t>>& lists);

/// One past the largest position, or 0 for none.
std::size_t neededExtent(const std::vector<std::size_t>& positions);

}  // namespace orrery::shell::values
