// The smallest and largest elements: min and max, along a dimension (with the
// index of the element found) or element by element of two arrays.
#include "shell/builtins/array_slices.hpp"
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_support.hpp"
#include "shell/builtins/element_pairs.hpp"

#include <orrery/except/argument_errors.hpp>

#include <cmath>

namespace orrery::shell::builtins {
namespace {

// True when candidate should replace best: NaN never wins over a number.
template <bool Max>
bool better(double candidate, double best) {
    if (std::isnan(candidate)) return false;
    if (std::isnan(best)) return true;
    return Max ? candidate > best : candidate < best;
}

template <bool Max>
void alongDimension(std::int32_t nlhs, ValueArrayPtr* plhs, const ValueArray& x, const Slices& slices) {
    // An empty dimension has no extremum: the result keeps the empty size.
    ValueArray found = ValueArray::zeros(resultClass(x), slices.length == 0 ? x.dims() : slices.reduced);
    ValueArray where = ValueArray::zeros(ClassId::Double, found.dims());
    for (std::size_t k = 0; slices.length > 0 && k < slices.count; ++k) {
        std::size_t best = 0;
        for (std::size_t j = 1; j < slices.length; ++j)
            if (better<Max>(x.realAt(slices.at(k, j)), x.realAt(slices.at(k, best)))) best = j;
        found.setRealAt(k, x.realAt(slices.at(k, best)));
        where.setRealAt(k, static_cast<double>(best + 1));
    }
    plhs[0] = makeValue(std::move(found));
    if (nlhs > 1) plhs[1] = makeValue(std::move(where));
}

// Element by element, a scalar pairing with every element of the other array.
template <bool Max>
ValueArray elementWise(const ValueArray& a, const ValueArray& b) {
    return pairElements(a, b, [](double x, double y) { return better<Max>(y, x) ? y : x; });
}

// min(x), [m, i] = min(x), min(x, [], dim), min(a, b); max alike.
template <bool Max>
void bnExtremum(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    const char* name = Max ? "max" : "min";
    checkArgumentCounts(nlhs, nrhs == 2 ? 1 : 2, nrhs, 1, 3);
    const ValueArray& x = *prhs[0];
    requireNumeric(x, name);
    if (nrhs == 2) {
        requireNumeric(*prhs[1], name);
        plhs[0] = makeValue(elementWise<Max>(x, *prhs[1]));
        return;
    }
    if (nrhs == 3 && !prhs[1]->isEmpty()) except::throwInvalidInput();
    if (nrhs == 1 && x.dims() == value::Dims{0, 0}) {
        plhs[0] = makeValue(ValueArray::zeros(resultClass(x), x.dims()));
        if (nlhs > 1) plhs[1] = makeValue(ValueArray());
        return;
    }
    const Slices slices =
        nrhs == 3 ? slicesAlong(x.dims(), dimensionArgument(*prhs[2], name)) : defaultSlices(x.dims());
    alongDimension<Max>(nlhs, plhs, x, slices);
}

constexpr BuiltinEntry table[] = {{"min", bnExtremum<false>}, {"max", bnExtremum<true>}};

}  // namespace

std::span<const BuiltinEntry> extremaBuiltins() { return table; }

}  // namespace orrery::shell::builtins
