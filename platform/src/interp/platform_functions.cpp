// The platform's own language functions: isscalar and sprintf.
#include "platform_functions.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/interp/sprintf.hpp>

#include <limits>

namespace orrery::interp::detail {
namespace {

using value::ValueArray;
using value::ValueArrayPtr;

void isscalarFunction(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    except::checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    if (prhs[0] == nullptr) except::throwInvalidInput();
    plhs[0] = value::makeValue(ValueArray::logicalScalar(prhs[0]->isScalar()));
}

void sprintfFunction(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    except::checkArgumentCounts(nlhs, 1, nrhs, 1, std::numeric_limits<std::int32_t>::max());
    plhs[0] = value::makeValue(fiSprintf(nrhs, prhs));
}

}  // namespace

std::vector<std::pair<std::string, LanguageFunction>> platformFunctions() {
    return {{"isscalar", isscalarFunction}, {"sprintf", sprintfFunction}};
}

}  // namespace orrery::interp::detail
