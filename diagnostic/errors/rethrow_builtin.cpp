// The rethrow built-in for error structures.
#include "diagnostic/errors/error_builtins.hpp"

#include "diagnostic/errors/error_structure.hpp"
#include "diagnostic/module/diagnostic_ids.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/qexception_envelope.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/call_stack.hpp>

void bnStructRethrowFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* /*plhs*/, std::int32_t nrhs,
                        const orrery::value::ValueArray* const* prhs) {
    namespace except = orrery::except;
    namespace diagnostic = orrery::diagnostic;
    except::checkArgumentCounts(nlhs, 0, nrhs, 1, 1);
    const auto& input = *prhs[0];
    if (!input.is(orrery::value::ClassId::Struct)) except::throwMessage(diagnostic::ids::RethrowInvalidInputType());
    auto [identifier, message, stack] = diagnostic::readErrorStructure(input);
    // Without a stack of its own the error is reported from the caller's frame.
    if (!stack) stack = orrery::interp::currentStack(1);
    except::QExceptionEnvelope envelope(std::move(identifier), std::move(message), std::move(stack), 1);
    envelope.SetFuncName("");
    envelope.DoThrow();
}
