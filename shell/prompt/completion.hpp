// Tab completion at the prompt.
#pragma once

#include "shell/eval/interpreter.hpp"

namespace orrery::shell::prompt {

/// Makes Tab at the prompt complete, from what the interpreter knows when the key
/// is pressed: inside a quoted text, file names; elsewhere, variables, script
/// functions, session commands, registered functions and keywords. In effect
/// while it lives; the interpreter must outlive it.
class Completion {
public:
    explicit Completion(const eval::Interpreter& interpreter);
    ~Completion();
    Completion(const Completion&) = delete;
    Completion& operator=(const Completion&) = delete;
};

/// The names that complete the start of a word, sorted and each once.
std::vector<std::string> completionsOf(const eval::Interpreter& interpreter, std::string_view start);

/// Whether the prompt's line up to position is inside a quoted text.
bool insideQuotes(std::string_view line, std::size_t position);

}  // namespace orrery::shell::prompt
