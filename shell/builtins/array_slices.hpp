// The vectors that run along one dimension of an array, for functions that
// reduce or sort along a dimension.
#pragma once

#include <orrery/value/dims.hpp>

#include <cstddef>

namespace orrery::shell::builtins {

/// The vectors of an array along one dimension: `count` vectors of `length`
/// elements, consecutive elements `stride` apart in linear (column-major) order.
struct Slices {
    std::size_t length = 0;
    std::size_t stride = 1;
    std::size_t count = 0;
    /// The size after reducing each vector to one element.
    value::Dims reduced;

    /// Linear index of element j of vector k.
    std::size_t at(std::size_t k, std::size_t j) const {
        return (k / stride) * stride * length + k % stride + j * stride;
    }
};

/// The slices of an array of the given size along dimension dim (0-based; a
/// dimension beyond the last has length 1).
Slices slicesAlong(const value::Dims& dims, std::size_t dim);

/// The slices a reduction works along when no dimension is given: along the
/// first dimension whose size is not 1. A 0-by-0 array is taken as a 0-by-1
/// column, so that its reduction gives one element (sum([]) is 0).
Slices defaultSlices(const value::Dims& dims);

}  // namespace orrery::shell::builtins
