// Warning records as a row of Warning objects.
#include "diagnostic/record/convert_warnings.hpp"

#include "diagnostic/classes/warning_objects.hpp"

namespace orrery::lang::diagnostic {

value::ValueArrayPtr convertWarningsToValueArray(const std::vector<Warning>& warnings) {
    // The array is owned from the start, so a failure part way destroys it.
    auto objects = value::makeValue(newWarningArray(value::Dims{1, warnings.size()}));
    for (std::size_t i = 0; i < warnings.size(); ++i) setWarningAt(*objects, i, warnings[i]);
    return objects;
}

}  // namespace orrery::lang::diagnostic
