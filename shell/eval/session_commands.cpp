// Commands that act on the session rather than on values: exit, quit, clear, who.
#include "shell/eval/interpreter.hpp"

#include "shell/eval/exit_request.hpp"
#include "shell/eval/user_error.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/argument_errors.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace orrery::shell::eval {
namespace {

constexpr std::array<std::string_view, 4> kSessionCommands = {"exit", "quit", "clear", "who"};
constexpr double kMostStatus = 255;

[[noreturn]] void raise(const std::string& function, void (*raiser)()) {
    try {
        raiser();
    } catch (...) {
        rethrowAsUserError(function);
    }
    throw ExitRequest{};  // not reached: the raiser always throws
}

int exitStatus(const std::string& name, const std::vector<value::ValueArray>& args) {
    if (args.empty()) return 0;
    if (args.size() > 1) raise(name, except::throwTooManyInputs);
    const value::ValueArray& status = args[0];
    const bool number = status.isNumeric() && status.isScalar();
    const double n = number ? status.realAt(0) : -1;
    if (!(n >= 0 && n <= kMostStatus && std::floor(n) == n)) raise(name, except::throwInvalidInput);
    return static_cast<int>(n);
}

}  // namespace

std::vector<std::string> Interpreter::namesInScope() const {
    std::vector<std::string> names = current_->names();
    for (const auto& [name, function] : functions_) names.push_back(name);
    names.insert(names.end(), kSessionCommands.begin(), kSessionCommands.end());
    return names;
}

bool Interpreter::isSessionCommand(std::string_view name) {
    return std::find(kSessionCommands.begin(), kSessionCommands.end(), name) != kSessionCommands.end();
}

Interpreter::Values Interpreter::callSessionCommand(const std::string& name, const Values& args, int nargout) {
    if (name == "exit" || name == "quit") throw ExitRequest{exitStatus(name, args)};
    if (name == "clear") {
        if (nargout > 0) raise(name, except::throwTooManyOutputs);
        if (args.empty()) {
            for (const auto& variable : current_->names()) current_->erase(variable);
        }
        for (const auto& arg : args) {
            if (!arg.isTextScalarTolerant()) raise(name, except::throwInvalidInput);
            current_->erase(text::utf16ToUtf8(arg.text()));
        }
        return {};
    }
    const std::vector<std::string> names = current_->names();  // who
    if (nargout > 0) {
        value::ValueArray cell = value::ValueArray::cell(value::Dims{names.size(), 1});
        for (std::size_t i = 0; i < names.size(); ++i) cell.setCellAt(i, value::ValueArray::charsFromUtf8(names[i]));
        return {cell};
    }
    if (names.empty()) return {};
    std::string listing = "Variables:\n ";
    for (const auto& variable : names) listing += " " + variable;
    console::consoleWrite(console::ConsoleStream::Output, listing + "\n");
    return {};
}

}  // namespace orrery::shell::eval
