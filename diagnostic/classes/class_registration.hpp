// Registration of the Warning class and the log functions with the class system.
#pragma once

#include <orrery/ocos/namespace.hpp>

namespace orrery::lang::diagnostic {

/// Registers, in the namespace orrery.internal given as internal: the class
/// "Warning" in its inner namespace "diagnostic", then the functions open, close
/// and load, in that order, in the inner namespace "log" of "diagnostic".
/// Registering again replaces the earlier descriptions.
void registerWarningClass(ocos::COSNamespace& internal);

/// Registers the class in orrery.internal: on every call when the class system
/// keeps its registrations per interpreter instance, else once per process.
void registerWarningClassForModule();

}  // namespace orrery::lang::diagnostic
