// The orrery command: runs a script file, text given with -e, or the prompt,
// with the diagnostic module loaded and the start-up warning states applied;
// or summarises a warning log.
#include "shell/builtins/host_builtins.hpp"
#include "shell/eval/exit_request.hpp"
#include "shell/eval/interpreter.hpp"
#include "shell/prompt/prompt.hpp"
#include "shell/startup/builtin_help.hpp"
#include "shell/startup/command_line.hpp"
#include "shell/startup/large_stack.hpp"
#include "shell/startup/log_summary.hpp"
#include "shell/startup/module_loader.hpp"
#include "shell/startup/session.hpp"
#include "shell/startup/warning_settings.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/value/value_array.hpp>

#include <optional>
#include <string>
#include <vector>

namespace {

using namespace orrery;
using shell::startup::Options;

value::ValueArray argumentCell(const std::vector<std::string>& args) {
    value::ValueArray cell = value::ValueArray::cell(value::Dims{1, args.size()});
    for (std::size_t i = 0; i < args.size(); ++i) cell.setCellAt(i, value::ValueArray::charsFromUtf8(args[i]));
    return cell;
}

int run(const Options& options, const std::vector<shell::startup::WarningSetting>& warningSettings) {
    std::optional<shell::startup::DiagnosticModule> module;
    const auto loaded = shell::startup::runAtTopLevel([&] { module.emplace(shell::startup::locateModule()); });
    if (loaded != shell::startup::RunOutcome::Completed) return shell::startup::exitStatus(loaded);
    shell::registerHostBuiltins();
    shell::startup::registerHelp();
    const auto applied = shell::startup::runUsageStep([&] { shell::startup::applyWarningSettings(warningSettings); });
    if (applied != shell::startup::RunOutcome::Completed) return shell::startup::exitStatus(applied);
    if (options.mode == Options::Mode::LogSummary) {
        return shell::startup::exitStatus(shell::startup::runAtTopLevel(
            [&] { shell::startup::printLogSummary(options.logFile, options.summaryFormat); }));
    }
    shell::eval::Interpreter interpreter;
    shell::setVariableQuery([&interpreter](std::string_view name) { return interpreter.isVariable(name); });
    interpreter.baseWorkspace().set("argv", argumentCell(options.scriptArgs));
    auto outcome = shell::startup::RunOutcome::Completed;
    int status = 0;
    try {
        switch (options.mode) {
            case Options::Mode::Script: outcome = shell::startup::runScriptFile(interpreter, options.script); break;
            case Options::Mode::Text:
                outcome = shell::startup::runSource(interpreter, options.text, u"<command>", u"");
                break;
            default: shell::prompt::runPrompt(interpreter); break;
        }
        status = shell::startup::exitStatus(outcome);
    } catch (const shell::eval::ExitRequest& request) {
        status = request.status;
    }
    shell::setVariableQuery({});
    return status;
}

int runCommand(int argc, char** argv) {
    // The interpreter's state, current from before the module is loaded until
    // after it is terminated.
    const interp::VirtualMachineScope machine;
    Options options;
    const auto parsed = shell::startup::runUsageStep([&] {
        options = shell::startup::parseCommandLine({argv + 1, argv + argc});
    });
    if (parsed != shell::startup::RunOutcome::Completed) return shell::startup::exitStatus(parsed);
    if (options.mode == Options::Mode::Help) {
        console::consoleWrite(console::ConsoleStream::Output, shell::startup::usageText());
        return 0;
    }
    if (options.mode == Options::Mode::Version) {
        console::consoleWrite(console::ConsoleStream::Output, shell::startup::versionText());
        return 0;
    }
    // ORRERY_WARNINGS first, then -W, each in the order given
    std::vector<shell::startup::WarningSetting> warningSettings;
    const auto settingsRead = shell::startup::runUsageStep([&] {
        warningSettings = shell::startup::warningSettingsFromEnvironment();
        warningSettings.insert(warningSettings.end(), options.warningSettings.begin(), options.warningSettings.end());
    });
    if (settingsRead != shell::startup::RunOutcome::Completed) return shell::startup::exitStatus(settingsRead);
    return run(options, warningSettings);
}

}  // namespace

int main(int argc, char** argv) {
    return shell::startup::runOnLargeStack([&] { return runCommand(argc, argv); });
}
