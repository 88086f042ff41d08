// The services layer: registered built-ins and feature switches.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <string>
#include <string_view>

namespace orrery::services {

/// Registers a built-in under a name in the interpreter's function table
/// (interp::registerFunction), where calls by name find it; a second
/// registration of the same name replaces the function. flags is kept for the
/// host and not interpreted.
ORRERY_API void svRegisterBuiltin(std::string_view name, int flags, value::BuiltinFunction function);

/// How many times a name has been registered (tests use it to check once-only registration).
ORRERY_API int svRegistrationCount(std::string_view name);

/// True when the feature switch exists.
ORRERY_API bool svIsFeatureRegistered(std::string_view feature);

/// True when the feature switch exists and is on.
ORRERY_API bool svIsFeatureEnabled(std::string_view feature);

/// Registers a feature switch (or changes it) with the given setting.
ORRERY_API void svSetFeature(std::string_view feature, bool enabled);

/// Removes a feature switch.
ORRERY_API void svUnregisterFeature(std::string_view feature);

}  // namespace orrery::services
