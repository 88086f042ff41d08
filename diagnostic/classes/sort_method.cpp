// sort of Warning arrays: a stable sort of each column, or of a row vector.
#include "diagnostic/classes/class_ids.hpp"
#include "diagnostic/classes/warning_info.hpp"
#include "diagnostic/classes/warning_methods.hpp"
#include "diagnostic/classes/warning_objects.hpp"

#include <orrery/except/throw_message.hpp>

#include <algorithm>
#include <vector>

namespace orrery::lang::diagnostic {
namespace {

using value::ValueArray;

// A record and its position from 1 within its run. A type of this file, so that
// the sort's instantiations stay inside the module.
struct Entry {
    const Warning* record;
    std::size_t position;
};

struct Sorted {
    ValueArray records;
    ValueArray positions;
};

/// Sorts the run of length elements that starts at linear index start into the
/// same places of the outputs; positions count from 1 within the run.
void sortRun(const ValueArray& input, std::size_t start, std::size_t length, Sorted& out) {
    std::vector<Entry> run;
    run.reserve(length);
    for (std::size_t k = 0; k < length; ++k) run.push_back({&warningRecordAt(input, start + k), k + 1});
    std::stable_sort(run.begin(), run.end(), [](const Entry& a, const Entry& b) { return *a.record < *b.record; });
    auto positions = out.positions.mutableData<double>();
    for (std::size_t j = 0; j < length; ++j) {
        setWarningAt(out.records, start + j, *run[j].record);
        positions[start + j] = static_cast<double>(run[j].position);
    }
}

}  // namespace

SortMI::SortMI() : WarningInstanceMI("sort") {
    addOutput(ocos::intern(kWarningClassPath));
    addOutput(ocos::intern("double"));
}

void SortMI::invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t /*nrhs*/,
                    const ValueArray* const* prhs) const {
    const ValueArray& input = *prhs[0];
    if (input.ndims() > 2) except::throwMessage(orrery::diagnostic::ids::SortNDSort());
    const std::size_t rows = input.dims().rows();
    const std::size_t cols = input.dims().cols();
    Sorted out{newWarningArray(input.dims()), ValueArray::zeros(value::ClassId::Double, input.dims())};
    if (rows == 1 && cols != 1) {
        sortRun(input, 0, cols, out);
    } else {
        for (std::size_t c = 0; c < cols; ++c) sortRun(input, c * rows, rows, out);
    }
    plhs[0] = value::makeValue(std::move(out.records));
    if (nlhs >= 2) plhs[1] = value::makeValue(std::move(out.positions));
}

}  // namespace orrery::lang::diagnostic
