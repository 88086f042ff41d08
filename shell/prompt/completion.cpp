// Tab completion at the prompt, on libedit's completion hooks.
#include "shell/prompt/completion.hpp"

#include "shell/lang/lexer.hpp"

#include <orrery/interp/function_table.hpp>

#include <readline.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>

namespace orrery::shell::prompt {
namespace {

const eval::Interpreter* completing = nullptr;

// libedit asks for the matches one by one, state 0 first; each is a copy it frees.
char* nextName(const char* text, int state) {
    static std::vector<std::string> names;
    static std::size_t next = 0;
    if (state == 0) {
        names = completing != nullptr ? completionsOf(*completing, text) : std::vector<std::string>();
        next = 0;
    }
    return next < names.size() ? strdup(names[next++].c_str()) : nullptr;
}

char** complete(const char* text, int start, int /*end*/) {
    rl_attempted_completion_over = 1;  // no file names unless asked for below
    if (insideQuotes(rl_line_buffer != nullptr ? rl_line_buffer : "", static_cast<std::size_t>(start)))
        return rl_completion_matches(text, rl_filename_completion_function);
    return rl_completion_matches(text, nextName);
}

}  // namespace

Completion::Completion(const eval::Interpreter& interpreter) {
    completing = &interpreter;
    rl_attempted_completion_function = complete;
}

Completion::~Completion() {
    rl_attempted_completion_function = nullptr;
    completing = nullptr;
}

std::vector<std::string> completionsOf(const eval::Interpreter& interpreter, std::string_view start) {
    std::vector<std::string> names = interpreter.namesInScope();
    const std::vector<std::string> functions = interp::functionNames();
    names.insert(names.end(), functions.begin(), functions.end());
    for (const std::string_view keyword : lang::keywords()) names.emplace_back(keyword);
    std::erase_if(names, [start](const std::string& name) { return !name.starts_with(start); });
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

// A quote opens a text where a value cannot end: at the start, after a blank,
// an operator or an opening bracket; after a name, a number or a closing
// bracket it is a transpose. Inside a text, the same quote closes it (two in a
// row stand for one).
bool insideQuotes(std::string_view line, std::size_t position) {
    char open = 0;
    bool afterValue = false;
    const std::size_t end = std::min(position, line.size());
    for (std::size_t i = 0; i < end; ++i) {
        const char c = line[i];
        if (open != 0) {
            if (c == open && i + 1 < end && line[i + 1] == open) {
                ++i;
            } else if (c == open) {
                open = 0;
                afterValue = true;
            }
            continue;
        }
        if (c == '"' || (c == '\'' && !afterValue)) {
            open = c;
            continue;
        }
        afterValue = std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == ')' || c == ']' || c == '}' ||
                     c == '.' || c == '\'';
    }
    return open != 0;
}

}  // namespace orrery::shell::prompt
