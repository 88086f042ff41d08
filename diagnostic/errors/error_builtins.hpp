// The exported error built-ins, bound by the interpreter by their plain names.
#pragma once

#include "diagnostic/module/export.hpp"

#include <orrery/value/value_array.hpp>

#include <cstdint>

/// error(...): raises the user error its inputs describe (see throwError). Takes
/// no outputs and at least one input.
DIAGNOSTIC_ENTRY void bnFullErrorFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                     const orrery::value::ValueArray* const* prhs);

/// assert(condition, ...): returns when the condition, a logical scalar or a
/// scalar convertible to one, is true; otherwise raises "ORRERY:assertion:failed"
/// (no further input) or the error the further inputs describe, reported by
/// "assert". Takes no outputs and at least one input.
DIAGNOSTIC_ENTRY void bnFullAssertFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                      const orrery::value::ValueArray* const* prhs);

/// rethrow(structure): raises the error an error structure describes, with the
/// caller's stack when the structure has no stack field. One input, no outputs.
DIAGNOSTIC_ENTRY void bnStructRethrowFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                         const orrery::value::ValueArray* const* prhs);

/// [msg, id] = lasterr(['-hotlinks',] [newMsg [, newId]]): returns the last error's
/// message (hyperlink mark-up removed unless "-hotlinks") and identifier, then
/// replaces the record when a message is given. Up to two outputs and two inputs.
DIAGNOSTIC_ENTRY void bnLastErrMsg(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                   const orrery::value::ValueArray* const* prhs);

/// s = lasterror([structure | 'reset']): returns the last error as a structure
/// (message, identifier, stack), then replaces it from an error structure or
/// resets it. Up to one output and one input.
DIAGNOSTIC_ENTRY void bnLastErrorFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                     const orrery::value::ValueArray* const* prhs);
