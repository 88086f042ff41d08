// The interactive prompt: line editing and history, and a session that goes
// on after errors.
#pragma once

#include "shell/eval/interpreter.hpp"

#include <filesystem>

namespace orrery::shell::prompt {

/// The history file: ~/.orrery_history, or nothing when HOME is not set.
std::filesystem::path historyFile();

/// Reads lines until end of input or `exit`/`quit`, running each complete
/// statement (lines that leave a block or bracket open are joined with the
/// next). Errors are reported and the session goes on. History is read from
/// and written to historyFile().
void runPrompt(eval::Interpreter& interpreter);

}  // namespace orrery::shell::prompt
