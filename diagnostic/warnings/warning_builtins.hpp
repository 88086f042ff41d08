// The exported warning built-ins, bound by the interpreter by their plain names.
#pragma once

#include "diagnostic/module/export.hpp"

#include <orrery/value/value_array.hpp>

#include <cstdint>

/// warning(...): issues a warning (message; identifier, format, arguments;
/// message object), runs a state command (on, off, error, query, backtrace,
/// verbose; the obsolete once, always and debug are refused), lists the states
/// (no inputs) or restores them from a structure. Up to two outputs: for an
/// issued warning the last warning from before it, for a state command the
/// states from before the change.
DIAGNOSTIC_ENTRY void bnFullWarningFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                       const orrery::value::ValueArray* const* prhs);

/// warning(states): applies a structure array with the fields identifier and
/// state, element by element, after checking every element. Up to one output:
/// the states from before, in a structure of the input's size.
DIAGNOSTIC_ENTRY void bnStructureWarningFcn(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                            const orrery::value::ValueArray* const* prhs);

/// [msg, id] = lastwarn([newMsg [, newId]]): returns the last warning's message
/// and identifier, then replaces them when a message is given. Up to two outputs
/// and two inputs.
DIAGNOSTIC_ENTRY void bnLastWarningMsg(std::int32_t nlhs, orrery::value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                       const orrery::value::ValueArray* const* prhs);
