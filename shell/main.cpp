// The orrery command: runs a script file, text given with -e, or the prompt,
// with the diagnostic module loaded.
#include "shell/builtins/host_builtins.hpp"
#include "shell/eval/interpreter.hpp"
#include "shell/eval/user_error.hpp"
#include "shell/prompt/prompt.hpp"
#include "shell/startup/command_line.hpp"
#include "shell/startup/module_loader.hpp"
#include "shell/startup/session.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/msg_id_exception.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdio>
#include <optional>
#include <string>

namespace {

using namespace orrery;
using shell::startup::Options;

value::ValueArray argumentCell(const std::vector<std::string>& args) {
    value::ValueArray cell = value::ValueArray::cell(value::Dims{1, args.size()});
    for (std::size_t i = 0; i < args.size(); ++i) cell.setCellAt(i, value::ValueArray::charsFromUtf8(args[i]));
    return cell;
}

int run(const Options& options) {
    const shell::startup::DiagnosticModule module(shell::startup::locateModule());
    shell::registerHostBuiltins();
    shell::eval::Interpreter interpreter;
    shell::setVariableQuery([&interpreter](std::string_view name) { return interpreter.isVariable(name); });
    interpreter.baseWorkspace().set("argv", argumentCell(options.scriptArgs));
    bool succeeded = true;
    switch (options.mode) {
    case Options::Mode::Script: succeeded = shell::startup::runScriptFile(interpreter, options.script); break;
    case Options::Mode::Text: succeeded = shell::startup::runSource(interpreter, options.text, u"<command>", u""); break;
    default: shell::prompt::runPrompt(interpreter); break;
    }
    shell::setVariableQuery({});
    return succeeded ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    // The interpreter's state, current from before the module is loaded until
    // after it is terminated.
    const interp::VirtualMachineScope machine;
    // Whole lines reach the terminal or pipe in the order they were written,
    // whichever of standard output and standard error they go to.
    std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
    try {
        const Options options = shell::startup::parseCommandLine({argv + 1, argv + argc});
        if (options.mode == Options::Mode::Help) {
            console::consoleWrite(console::ConsoleStream::Output, shell::startup::usageText());
            return 0;
        }
        if (options.mode == Options::Mode::Version) {
            console::consoleWrite(console::ConsoleStream::Output, shell::startup::versionText());
            return 0;
        }
        return run(options);
    } catch (const except::QException& error) {
        shell::startup::reportError(error);
    } catch (const except::IMsgIDException& failure) {
        shell::startup::reportError(shell::eval::userErrorFrom(failure));
    } catch (const std::exception& failure) {
        console::consoleWrite(console::ConsoleStream::Error, std::string("Internal error: ") + failure.what() + "\n");
    }
    return 1;
}
