// Running source text at the top level: parse, run, and report what escapes.
#pragma once

#include "shell/eval/interpreter.hpp"

#include <orrery/except/qexception.hpp>

#include <string>
#include <string_view>

namespace orrery::shell::startup {

/// Parses and runs source text. A non-empty frameName runs it as a script
/// (inside a call-stack frame). An error that escapes is recorded as the last
/// error and printed on the console's error stream; the answer is false then.
bool runSource(eval::Interpreter& interpreter, std::string_view source, const std::u16string& sourceName,
               const std::u16string& frameName);

/// Reads the script file and runs it in a frame named after the file (its
/// name without folder and extension).
bool runScriptFile(eval::Interpreter& interpreter, const std::string& file);

/// Records an error that reached the top level and prints it.
void reportError(const except::QException& error);

}  // namespace orrery::shell::startup
