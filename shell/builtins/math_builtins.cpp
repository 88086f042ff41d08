// Element-wise and reducing math built-ins: abs, isnan, isinf, any, all, sum,
// mean, and find.
#include "shell/builtins/array_slices.hpp"
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cmath>
#include <vector>

namespace orrery::shell::builtins {
namespace {

// ---- element-wise ------------------------------------------------------------

void bnAbs(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const ValueArray& x = *prhs[0];
    requireNumeric(x, "abs");
    ValueArray result = ValueArray::zeros(x.isNumeric() ? x.classId() : ClassId::Double, x.dims());
    for (std::size_t i = 0; i < x.numel(); ++i) result.setRealAt(i, std::fabs(x.realAt(i)));
    plhs[0] = makeValue(std::move(result));
}

template <bool (*Test)(double)>
ValueArray testElements(const ValueArray& x, std::string_view function) {
    requireNumeric(x, function);
    ValueArray result = ValueArray::zeros(ClassId::Logical, x.dims());
    for (std::size_t i = 0; x.isNumeric() && i < x.numel(); ++i) result.setLogicalAt(i, Test(x.realAt(i)));
    return result;
}

bool isNaN(double x) { return std::isnan(x); }
bool isInf(double x) { return std::isinf(x); }

void bnIsnan(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(testElements<isNaN>(*prhs[0], "isnan"));
}

void bnIsinf(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(testElements<isInf>(*prhs[0], "isinf"));
}

// ---- reductions --------------------------------------------------------------

// The slices of f(x) or f(x, dim).
Slices reductionSlices(std::string_view function, std::int32_t nrhs, const ValueArray* const* prhs) {
    requireNumeric(*prhs[0], function);
    if (nrhs > 1) return slicesAlong(prhs[0]->dims(), dimensionArgument(*prhs[1], function));
    return defaultSlices(prhs[0]->dims());
}

// any ignores NaN; all counts NaN as nonzero.
template <bool All>
void bnAnyAll(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 2);
    const ValueArray& x = *prhs[0];
    const Slices slices = reductionSlices(All ? "all" : "any", nrhs, prhs);
    ValueArray result = ValueArray::zeros(ClassId::Logical, slices.reduced);
    for (std::size_t k = 0; k < slices.count; ++k) {
        bool answer = All;
        for (std::size_t j = 0; j < slices.length && answer == All; ++j) {
            const double v = x.realAt(slices.at(k, j));
            answer = All ? v != 0 : (v != 0 && !std::isnan(v));
        }
        result.setLogicalAt(k, answer);
    }
    plhs[0] = makeValue(std::move(result));
}

// Sums keep single and integer classes (integers saturate); others give double.
void bnSum(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 2);
    const ValueArray& x = *prhs[0];
    const Slices slices = reductionSlices("sum", nrhs, prhs);
    ValueArray result = ValueArray::zeros(x.isNumeric() ? x.classId() : ClassId::Double, slices.reduced);
    for (std::size_t k = 0; k < slices.count; ++k) {
        double total = 0;
        for (std::size_t j = 0; j < slices.length; ++j) total += x.realAt(slices.at(k, j));
        result.setRealAt(k, total);
    }
    plhs[0] = makeValue(std::move(result));
}

// The mean of each slice: its sum over its length (NaN for an empty slice), in
// double or single.
void bnMean(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 2);
    const ValueArray& x = *prhs[0];
    const Slices slices = reductionSlices("mean", nrhs, prhs);
    ValueArray result = ValueArray::zeros(x.is(ClassId::Single) ? ClassId::Single : ClassId::Double, slices.reduced);
    for (std::size_t k = 0; k < slices.count; ++k) {
        double total = 0;
        for (std::size_t j = 0; j < slices.length; ++j) total += x.realAt(slices.at(k, j));
        result.setRealAt(k, total / static_cast<double>(slices.length));
    }
    plhs[0] = makeValue(std::move(result));
}

// The linear indices (from 1) of the nonzero elements, at most n of them: a row
// for a row, a column otherwise.
void bnFind(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 2);
    const ValueArray& x = *prhs[0];
    requireNumeric(x, "find");
    const double limit = nrhs > 1 ? prhs[1]->realAt(0) : HUGE_VAL;
    if (nrhs > 1 && (!prhs[1]->isScalar() || !(limit >= 0) || limit != std::floor(limit)))
        except::throwMessage(messages::BadCount(text::asciiToUtf16("find")));
    std::vector<double> found;
    for (std::size_t i = 0; i < x.numel() && static_cast<double>(found.size()) < limit; ++i)
        if (x.realAt(i) != 0) found.push_back(static_cast<double>(i + 1));
    const bool row = x.dims().count() == 2 && x.dims().rows() == 1 && x.numel() > 0;
    const value::Dims dims = row ? value::Dims{1, found.size()} : value::Dims{found.size(), found.empty() ? 0U : 1U};
    plhs[0] = makeValue(ValueArray::doubles(dims, std::move(found)));
}

constexpr BuiltinEntry table[] = {
    {"abs", bnAbs},          {"isnan", bnIsnan}, {"isinf", bnIsinf}, {"any", bnAnyAll<false>},
    {"all", bnAnyAll<true>}, {"sum", bnSum},     {"mean", bnMean},   {"find", bnFind},
};

}  // namespace

std::span<const BuiltinEntry> mathBuiltins() { return table; }

}  // namespace orrery::shell::builtins
