// Index resolution and reading by index.
#include "shell/values/indexing.hpp"

#include "shell/values/elements.hpp"
#include "shell/values/index_positions.hpp"

#include <numeric>

namespace orrery::shell::values {
namespace {

using value::ClassId;
using value::Dims;
using value::ValueArray;

bool isVectorShape(const Dims& dims) { return dims.count() == 2 && (dims.rows() == 1 || dims.cols() == 1); }

// The size of a(i) with one index: a vector index of a vector follows the
// array's orientation, a mask of a row gives a row, ':' gives a column, and
// anything else takes the index's own size.
Dims linearResultDims(const Dims& arrayDims, const IndexArg& arg, std::size_t count) {
    if (arg.colon) return Dims{count, 1};
    const Dims& indexDims = arg.value.dims();
    if (arg.value.is(ClassId::Logical)) {
        const bool rowResult = arrayDims.count() == 2 && arrayDims.rows() == 1 && indexDims.rows() == 1;
        return rowResult ? Dims{1, count} : Dims{count, 1};
    }
    if (isVectorShape(arrayDims) && isVectorShape(indexDims) && arrayDims.numel() != 1) {
        return arrayDims.rows() == 1 ? Dims{1, count} : Dims{count, 1};
    }
    return indexDims;
}

}  // namespace

std::size_t endValue(const Dims& dims, std::size_t k, std::size_t n) {
    if (n <= 1) return dims.numel();
    if (k + 1 < n) return dims[k];
    std::size_t rest = 1;
    for (std::size_t d = k; d < std::max(dims.count(), k + 1); ++d) rest *= dims[d];
    return rest;
}

Selection selectElements(const Dims& dims, const IndexArgs& args) {
    const std::size_t n = args.size();
    if (n == 0) {
        Selection all{std::vector<std::size_t>(dims.numel()), dims};
        std::iota(all.positions.begin(), all.positions.end(), std::size_t{0});
        return all;
    }
    if (n == 1) {
        auto positions = indexPositions(args[0], dims.numel());
        requireWithin(positions, dims.numel(), 0, true);
        const Dims resultDims = linearResultDims(dims, args[0], positions.size());
        return {std::move(positions), resultDims};
    }
    std::vector<std::vector<std::size_t>> lists;
    std::vector<std::size_t> extents;
    for (std::size_t k = 0; k < n; ++k) {
        extents.push_back(endValue(dims, k, n));
        lists.push_back(indexPositions(args[k], extents.back()));
        requireWithin(lists.back(), extents.back(), k, false);
    }
    return {cartesianPositions(lists, extents), listSizes(lists)};
}

std::optional<Selection> selectExisting(const Dims& dims, const IndexArgs& args) {
    const std::size_t n = args.size();
    for (std::size_t k = 0; k < n; ++k) {
        const std::size_t extent = n == 1 ? dims.numel() : endValue(dims, k, n);
        if (neededExtent(indexPositions(args[k], extent)) > extent) return std::nullopt;
    }
    return selectElements(dims, args);
}

ValueArray indexValue(const ValueArray& a, const IndexArgs& args) {
    Selection selection = selectElements(a.dims(), args);
    ValueArray result = blankLike(a, selection.dims);
    for (std::size_t i = 0; i < selection.positions.size(); ++i) copyElement(result, i, a, selection.positions[i]);
    return result;
}

}  // namespace orrery::shell::values
