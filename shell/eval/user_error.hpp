// Errors as the language sees them: every failure that reaches the language
// becomes a QException with identifier, message, call stack and reporting
// function; caught and uncaught errors are recorded as the last error.
#pragma once

#include <orrery/except/qexception.hpp>

#include <string>

namespace orrery::shell::eval {

/// The one conversion of failures to the language's error object. Called from
/// a catch handler at a boundary where the language takes over (a call by name,
/// a statement, the parse of a program), it rethrows the exception in flight: a
/// QException unchanged; a catalogued failure as a QException with its
/// identifier and text, the call stack of this moment and functionName as the
/// reporting function; running out of memory as "ORRERY:shell:outOfMemory"; a
/// text that does not convert to a number (Boost's bad lexical conversion, as
/// the warning log reader raises it) as "ORRERY:shell:badConversion".
/// Anything else is an internal fault and passes on unchanged.
[[noreturn]] void rethrowAsUserError(std::string functionName = {});

/// Records the error as the last error, with its stack.
void recordLastError(const except::QException& error);

/// What an uncaught error prints: "Error: <message>\n", or "Error using
/// <function>\n<message>\n" when the error names its function; then
/// "Error in <name> (line <n>)\n" when the innermost frame of its stack has a
/// name and a line (a script run from a file is a frame; the prompt and -e
/// text are not).
std::string uncaughtErrorText(const except::QException& error);

}  // namespace orrery::shell::eval
