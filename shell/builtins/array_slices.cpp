// Vectors along one dimension of an array.
#include "shell/builtins/array_slices.hpp"

#include <algorithm>
#include <vector>

namespace orrery::shell::builtins {

Slices slicesAlong(const value::Dims& dims, std::size_t dim) {
    Slices slices;
    slices.length = dims[dim];
    slices.stride = 1;
    for (std::size_t d = 0; d < std::min(dim, dims.count()); ++d) slices.stride *= dims[d];
    std::vector<std::size_t> sizes(dims.sizes().begin(), dims.sizes().end());
    if (dim < sizes.size()) sizes[dim] = 1;
    slices.reduced = value::Dims(sizes);
    slices.count = slices.reduced.numel();
    return slices;
}

Slices defaultSlices(const value::Dims& dims) {
    if (dims == value::Dims{0, 0}) return slicesAlong(value::Dims{0, 1}, 0);
    std::size_t dim = 0;
    while (dim < dims.count() && dims[dim] == 1) ++dim;
    return slicesAlong(dims, dim == dims.count() ? 0 : dim);
}

}  // namespace orrery::shell::builtins
