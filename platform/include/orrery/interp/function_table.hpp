// The interpreter's table of language functions, called by name.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::interp {

/// A language function with the built-in signature.
using LanguageFunction = std::function<void(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                            const value::ValueArray* const* prhs)>;

/// Registers (or replaces) a function under a name; an empty function removes the name.
/// The table is process-wide. The platform's own "isscalar" (one input, at most one
/// output: true when the input has exactly one element) and "sprintf" (fiSprintf with
/// the built-in signature) are in it before anything else is registered.
ORRERY_API void registerFunction(std::string_view name, LanguageFunction function);

/// True when a function of that name is registered.
ORRERY_API bool isFunction(std::string_view name);

/// The names of every registered function, in alphabetical order.
ORRERY_API std::vector<std::string> functionNames();

/// Calls a language function by name. When the class of the first object input
/// has a method of that name, the method runs instead, its signature checked
/// (ocos::callMethodIfDefined: class methods win over the host's functions).
/// Otherwise the registered function runs; an unknown name raises
/// "ORRERY:undefinedFunction".
/// plhs must have room for max(nlhs, 1) outputs: a function fills plhs[0] even
/// when no output is requested, as the language's "ans" needs.
ORRERY_API void callFunction(std::string_view name, std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                             const value::ValueArray* const* prhs);

}  // namespace orrery::interp
