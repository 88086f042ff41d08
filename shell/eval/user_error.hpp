// Errors as the language sees them: every failure becomes a QException with
// identifier, message, call stack and reporting function; caught and uncaught
// errors are recorded as the last error.
#pragma once

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/except/qexception.hpp>

#include <string>

namespace orrery::shell::eval {

/// The user error a catalogued failure becomes: its identifier and text, the
/// call stack of this moment, and the reporting function (empty for none).
except::QException userErrorFrom(const except::IMsgIDException& failure, std::string functionName = {});

/// The user error for running out of memory.
except::QException outOfMemoryError();

/// Records the error as the last error, with its stack.
void recordLastError(const except::QException& error);

/// What an uncaught error prints: "Error: <message>\n", or "Error using
/// <function>\n<message>\n" when the error names its function.
std::string uncaughtErrorText(const except::QException& error);

}  // namespace orrery::shell::eval
