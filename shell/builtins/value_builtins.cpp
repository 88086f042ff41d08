// Built-ins that inspect values: size, numel, isempty, class, isequal (isscalar is
// the platform's own).
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_support.hpp"
#include "shell/builtins/value_equality.hpp"

#include <orrery/except/argument_errors.hpp>

#include <algorithm>
#include <limits>
#include <vector>

namespace orrery::shell::builtins {
namespace {

ValueArray sizeRow(const value::Dims& dims) {
    const value::Dims shape{1, dims.count()};
    return ValueArray::doubles(shape, std::vector<double>(dims.sizes().begin(), dims.sizes().end()));
}

// [d1, d2, ..., dn] = size(x): each output one size, the last the product of the rest.
void spreadSizes(std::int32_t nlhs, ValueArrayPtr* plhs, const value::Dims& dims) {
    const auto outputs = static_cast<std::size_t>(nlhs);
    for (std::size_t k = 0; k < outputs; ++k) {
        double size = static_cast<double>(dims[k]);
        if (k + 1 == outputs)
            for (std::size_t rest = k + 1; rest < dims.count(); ++rest) size *= static_cast<double>(dims[rest]);
        plhs[k] = makeValue(ValueArray::scalar(size));
    }
}

void bnSize(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, nrhs == 2 ? 1 : anyCount, nrhs, 1, 2);
    const value::Dims& dims = prhs[0]->dims();
    if (nrhs == 2) {
        const std::size_t dim = dimensionArgument(*prhs[1], "size");
        plhs[0] = makeValue(ValueArray::scalar(static_cast<double>(dims[dim])));
    } else if (nlhs <= 1) {
        plhs[0] = makeValue(sizeRow(dims));
    } else {
        spreadSizes(nlhs, plhs, dims);
    }
}

void bnNumel(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(ValueArray::scalar(static_cast<double>(prhs[0]->numel())));
}

void bnIsEmpty(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(ValueArray::logicalScalar(prhs[0]->isEmpty()));
}

void bnClass(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(ValueArray::charsFromUtf8(prhs[0]->className()));
}

void bnIsEqual(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 2, anyCount);
    const Arguments rest = argumentsOf(nrhs, prhs).subspan(1);
    const bool equal =
        std::all_of(rest.begin(), rest.end(), [&](const ValueArray* v) { return valuesEqual(*prhs[0], *v); });
    plhs[0] = makeValue(ValueArray::logicalScalar(equal));
}

constexpr BuiltinEntry table[] = {
    {"size", bnSize}, {"numel", bnNumel}, {"isempty", bnIsEmpty}, {"class", bnClass}, {"isequal", bnIsEqual},
};

}  // namespace

std::span<const BuiltinEntry> valueBuiltins() { return table; }

}  // namespace orrery::shell::builtins
