// The host class "QException": the object `catch err` binds, with the
// properties identifier, message and stack and the method rethrow.
#pragma once

#include <orrery/except/qexception.hpp>
#include <orrery/value/value_array.hpp>

namespace orrery::shell::eval {

/// Registers the class with the class system (once; later calls do nothing).
void registerExceptionClass();

/// A 1-by-1 QException object holding the error's identifier, message and stack.
value::ValueArray makeExceptionObject(const except::QException& error);

}  // namespace orrery::shell::eval
