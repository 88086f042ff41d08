// The assert built-in.
#include "diagnostic/errors/error_builtins.hpp"

#include "diagnostic/errors/error_core.hpp"
#include "diagnostic/module/diagnostic_ids.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>

namespace {

using orrery::value::ClassId;
using orrery::value::ValueArray;
namespace except = orrery::except;
namespace ids = orrery::diagnostic::ids;

// The condition as a logical scalar. Only scalars are converted; a failed
// conversion (a catalogued failure) counts as "not a logical scalar", while any
// other exception, such as an interrupt, passes through.
bool conditionHolds(const ValueArray& condition) {
    ValueArray logical = condition;
    if (condition.isScalar() && !condition.is(ClassId::Logical)) {
        try {
            logical = condition.toLogicalScalar();
        } catch (const except::IMsgIDException&) {
            except::throwMessage(ids::AssertionLogicalScalar());
        }
    }
    if (!logical.is(ClassId::Logical) || !logical.isScalar()) except::throwMessage(ids::AssertionLogicalScalar());
    return logical.logicalAt(0);
}

bool isEmptyMessage(const ValueArray& message) {
    return message.isEmpty() || (message.isTextScalarTolerant() && message.textView().empty());
}

}  // namespace

void bnFullAssertFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* /*plhs*/, std::int32_t nrhs,
                     const ValueArray* const* prhs) {
    if (nlhs > 0) except::throwTooManyOutputs();
    if (nrhs < 1) except::throwNotEnoughInputs();
    if (conditionHolds(*prhs[0])) return;
    if (nrhs == 1) {
        // Raised directly: a failed assertion is not put through the legacy report.
        throw except::MsgIDException<ids::AssertionFailed>(std::string(ids::AssertionFailed::identifierText),
                                                           ids::AssertionFailed());
    }
    if (isEmptyMessage(*prhs[1])) except::throwMessage(ids::AssertionEmptyMessage());
    static const std::string functionName = "assert";
    orrery::diagnostic::throwError(nrhs - 1, prhs + 1, functionName);
}
