// Elementary functions of numbers, element by element: floor, ceil, round,
// sqrt, exp, log, and the remainders mod and rem of two arrays.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"
#include "shell/builtins/element_pairs.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cmath>

namespace orrery::shell::builtins {
namespace {

// ---- one array ---------------------------------------------------------------

// Rounding keeps the class: integers are whole already.
template <double (*Apply)(double)>
void rounding(const char* name, std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs,
              const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    requireNumeric(*prhs[0], name);
    plhs[0] = makeValue(mapElements(*prhs[0], Apply));
}

double floorOf(double x) { return std::floor(x); }
double ceilOf(double x) { return std::ceil(x); }
double roundOf(double x) { return std::round(x); }  // halves away from zero

void bnFloor(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    rounding<floorOf>("floor", nlhs, plhs, nrhs, prhs);
}
void bnCeil(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    rounding<ceilOf>("ceil", nlhs, plhs, nrhs, prhs);
}
void bnRound(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    rounding<roundOf>("round", nlhs, plhs, nrhs, prhs);
}

// sqrt and log of a negative number have complex results, which values here
// cannot hold: refused rather than answered with NaN.
template <double (*Apply)(double), bool NegativeRefused>
void elementary(const char* name, std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs,
                const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const ValueArray& x = *prhs[0];
    requireNumeric(x, name);
    ValueArray result =
        ValueArray::zeros(resultClass(x) == ClassId::Single ? ClassId::Single : ClassId::Double, x.dims());
    for (std::size_t i = 0; i < x.numel(); ++i) {
        const double v = x.realAt(i);
        if (NegativeRefused && v < 0) except::throwMessage(messages::ComplexResult(text::asciiToUtf16(name)));
        result.setRealAt(i, Apply(v));
    }
    plhs[0] = makeValue(std::move(result));
}

double sqrtOf(double x) { return std::sqrt(x); }
double expOf(double x) { return std::exp(x); }
double logOf(double x) { return std::log(x); }

void bnSqrt(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    elementary<sqrtOf, true>("sqrt", nlhs, plhs, nrhs, prhs);
}
void bnExp(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    elementary<expOf, false>("exp", nlhs, plhs, nrhs, prhs);
}
void bnLog(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    elementary<logOf, true>("log", nlhs, plhs, nrhs, prhs);
}

// ---- two arrays --------------------------------------------------------------

// mod takes the sign of the divisor and rem that of the dividend; mod(x, 0) is x
// and rem(x, 0) is NaN.
double modOf(double x, double y) {
    if (y == 0) return x;
    const double r = std::fmod(x, y);
    return r != 0 && (r < 0) != (y < 0) ? r + y : r;
}
double remOf(double x, double y) { return std::fmod(x, y); }

template <double (*Combine)(double, double)>
void remainder(const char* name, std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs,
               const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 2, 2);
    requireNumeric(*prhs[0], name);
    requireNumeric(*prhs[1], name);
    plhs[0] = makeValue(pairElements(*prhs[0], *prhs[1], Combine));
}

void bnMod(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    remainder<modOf>("mod", nlhs, plhs, nrhs, prhs);
}
void bnRem(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    remainder<remOf>("rem", nlhs, plhs, nrhs, prhs);
}

constexpr BuiltinEntry table[] = {
    {"floor", bnFloor}, {"ceil", bnCeil}, {"round", bnRound}, {"sqrt", bnSqrt},
    {"exp", bnExp},     {"log", bnLog},   {"mod", bnMod},     {"rem", bnRem},
};

}  // namespace

std::span<const BuiltinEntry> elementaryBuiltins() { return table; }

}  // namespace orrery::shell::builtins
