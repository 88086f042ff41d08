// sort of numeric, logical and char arrays along a dimension, with the index
// output. Objects whose class defines sort never reach it: the function table
// hands them to the class.
#include "shell/builtins/array_slices.hpp"
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace orrery::shell::builtins {
namespace {

struct SortRequest {
    Slices slices;
    bool descending = false;
};

bool isDescending(const std::string& mode) {
    if (text::equalsIgnoreCaseAscii(mode, "ascend")) return false;
    if (text::equalsIgnoreCaseAscii(mode, "descend")) return true;
    except::throwMessage(messages::BadOption(u"sort", text::utf8ToUtf16(mode)));
}

// sort(x), sort(x, dim), sort(x, mode), sort(x, dim, mode).
SortRequest sortRequest(std::int32_t nrhs, const ValueArray* const* prhs) {
    Arguments arguments = argumentsOf(nrhs, prhs).subspan(1);
    SortRequest request;
    if (const auto mode = takeTrailingText(arguments))
        request.descending = isDescending(*mode);
    else if (nrhs == 3)
        except::throwMessage(messages::NotText(u"sort", 3));
    if (!arguments.empty())
        request.slices = slicesAlong(prhs[0]->dims(), dimensionArgument(*arguments[0], "sort"));
    else
        request.slices = defaultSlices(prhs[0]->dims());
    return request;
}

// Orders positions of one vector: stable, NaN last when ascending and first when descending.
void orderVector(std::vector<std::size_t>& order, const std::vector<double>& values, bool descending) {
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const double x = values[a];
        const double y = values[b];
        if (std::isnan(x) || std::isnan(y))
            return descending ? std::isnan(x) && !std::isnan(y) : !std::isnan(x) && std::isnan(y);
        return descending ? x > y : x < y;
    });
}

void bnSort(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 2, nrhs, 1, 3);
    const ValueArray& x = *prhs[0];
    requireNumeric(x, "sort");
    const SortRequest request = sortRequest(nrhs, prhs);
    const Slices& slices = request.slices;
    ValueArray sorted = ValueArray::zeros(x.classId(), x.dims());
    ValueArray index = ValueArray::zeros(value::ClassId::Double, x.dims());
    std::vector<double> values(slices.length);
    std::vector<std::size_t> order(slices.length);
    for (std::size_t k = 0; slices.length > 0 && k < slices.count; ++k) {
        for (std::size_t j = 0; j < slices.length; ++j) values[j] = x.realAt(slices.at(k, j));
        std::iota(order.begin(), order.end(), std::size_t{0});
        orderVector(order, values, request.descending);
        for (std::size_t j = 0; j < slices.length; ++j) {
            sorted.setRealAt(slices.at(k, j), values[order[j]]);
            index.setRealAt(slices.at(k, j), static_cast<double>(order[j] + 1));
        }
    }
    plhs[0] = makeValue(std::move(sorted));
    if (nlhs > 1) plhs[1] = makeValue(std::move(index));
}

constexpr BuiltinEntry table[] = {{"sort", bnSort}};

}  // namespace

std::span<const BuiltinEntry> sortBuiltins() { return table; }

}  // namespace orrery::shell::builtins
