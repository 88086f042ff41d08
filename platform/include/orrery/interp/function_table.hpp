// The interpreter's table of language functions, called by name.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <functional>
#include <string_view>

namespace orrery::interp {

/// A language function with the built-in signature.
using LanguageFunction = std::function<void(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                                            const value::ValueArray* const* prhs)>;

/// Registers (or replaces) a function under a name.
ORRERY_API void registerFunction(std::string_view name, LanguageFunction function);

/// True when a function of that name is registered.
ORRERY_API bool isFunction(std::string_view name);

/// Calls a language function by name. When an input is an object whose class
/// defines a method of that name, the method runs instead (class methods win over
/// the host's functions). An unknown name raises "ORRERY:undefinedFunction".
ORRERY_API void callFunction(std::string_view name, std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                             const value::ValueArray* const* prhs);

}  // namespace orrery::interp
