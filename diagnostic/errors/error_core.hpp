// The error core shared by error and assert.
#pragma once

#include <orrery/except/qexception_envelope.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <string>

namespace orrery::diagnostic {

/// True when a first input means "no error": an empty struct, char, double or
/// object array, or a text scalar (0-by-0 char included) whose text is empty.
bool isSilentMessage(const value::ValueArray& first);

/// The envelope of the user error that inputs[0 .. inputCount-1] describe
/// (message; identifier, format, arguments; message object; error structure).
/// Raises the analysis failures, prefixed "ORRERY:error:", and those of reading
/// an error structure.
except::QExceptionEnvelope describeError(std::int32_t inputCount, const value::ValueArray* const* inputs);

/// Moves the envelope into a per-thread slot and returns it there. Raising from
/// the slot leaves nothing to destroy on the raising frame; the slot is reused by
/// the next error and released when the thread ends.
except::QExceptionEnvelope& pendingEnvelope(except::QExceptionEnvelope envelope);

/// Raises the user error that the inputs describe under the reporting function's
/// name (UTF-8, empty for none); returns without effect for a silent first input.
/// Defined here so that it folds into its callers: every frame between the raise
/// and the handler adds to the cost of an error.
inline void throwError(std::int32_t inputCount, const value::ValueArray* const* inputs,
                       const std::string& functionName) {
    if (inputCount >= 1 && inputs[0] && isSilentMessage(*inputs[0])) return;
    except::QExceptionEnvelope& envelope = pendingEnvelope(describeError(inputCount, inputs));
    envelope.SetFuncName(functionName);
    envelope.DoThrow();
}

}  // namespace orrery::diagnostic
