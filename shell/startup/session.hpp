// Running at the top level: parse, run, and report what escapes.
#pragma once

#include "shell/eval/interpreter.hpp"

#include <orrery/except/qexception.hpp>

#include <functional>
#include <string>
#include <string_view>

namespace orrery::shell::startup {

/// How a top-level run ended.
enum class RunOutcome { Completed, UserError, UsageError, InternalFault };

/// The exit status of a run that ended so: 0, 1 after an uncaught error, 2
/// after a wrong command line or start-up setting, 70 after an internal fault.
int exitStatus(RunOutcome outcome);

/// Runs body at the top level. eval::ExitRequest passes through. An error that escapes it is recorded as the
/// last error and printed on standard error ("Error: ..."); an internal fault
/// is printed as "Internal error: ..." and recorded nowhere. Either way the
/// session can go on.
RunOutcome runAtTopLevel(const std::function<void()>& body);

/// Runs a step that reads the command line or applies start-up settings, as
/// runAtTopLevel does, except that an error it reports is a usage error.
RunOutcome runUsageStep(const std::function<void()>& body);

/// Parses and runs source text at the top level. A non-empty frameName runs
/// it as a script (inside a call-stack frame).
RunOutcome runSource(eval::Interpreter& interpreter, std::string_view source, const std::u16string& sourceName,
                     const std::u16string& frameName);

/// The script name that stands for standard input.
inline constexpr std::string_view kStandardInput = "-";

/// Reads the script file and runs it in a frame named after the file (its
/// name without folder and extension); "-" reads the script from standard
/// input and runs it in a frame named "stdin".
RunOutcome runScriptFile(eval::Interpreter& interpreter, const std::string& file);

}  // namespace orrery::shell::startup
