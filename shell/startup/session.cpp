// Top-level runs of source text and error reports.
#include "shell/startup/session.hpp"

#include "shell/eval/exit_request.hpp"
#include "shell/eval/interrupt.hpp"
#include "shell/eval/script_source.hpp"
#include "shell/eval/user_error.hpp"
#include "shell/lang/parser.hpp"
#include "shell/startup/startup_messages.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <sstream>
#include <string_view>

namespace orrery::shell::startup {
namespace {

void reportError(const except::QException& error) {
    eval::recordLastError(error);
    // The terminal has echoed the Ctrl-C that interrupted the run: its line ends first.
    if (eval::isInterruption(error) && ::isatty(STDERR_FILENO) != 0)
        console::consoleWrite(console::ConsoleStream::Error, "\n");
    console::consoleWrite(console::ConsoleStream::Error, eval::uncaughtErrorText(error));
}

void reportInternalError(std::string_view what) {
    console::consoleWrite(console::ConsoleStream::Error, "Internal error: " + std::string(what) + "\n");
}

void runProgram(eval::Interpreter& interpreter, std::string_view source, const std::u16string& sourceName,
                const std::u16string& frameName) {
    const lang::Program program = lang::parse(source, sourceName);
    interpreter.run(program, sourceName, frameName);
}

}  // namespace

int exitStatus(RunOutcome outcome) {
    switch (outcome) {
        case RunOutcome::Completed: return 0;
        case RunOutcome::UserError: return 1;
        case RunOutcome::UsageError: return 2;
        case RunOutcome::InternalFault: return 70;
    }
    return 70;
}

RunOutcome runAtTopLevel(const std::function<void()>& body) {
    try {
        try {
            body();
        } catch (...) {
            eval::rethrowAsUserError();  // failures before any statement runs: options, loading, parsing
        }
        return RunOutcome::Completed;
    } catch (const except::QException& error) {
        reportError(error);
        return RunOutcome::UserError;
    } catch (const eval::ExitRequest&) {
        throw;
    } catch (const std::exception& fault) {
        reportInternalError(fault.what());
    } catch (...) {
        reportInternalError("an exception of unknown type");
    }
    return RunOutcome::InternalFault;
}

RunOutcome runUsageStep(const std::function<void()>& body) {
    const RunOutcome outcome = runAtTopLevel(body);
    return outcome == RunOutcome::UserError ? RunOutcome::UsageError : outcome;
}

RunOutcome runSource(eval::Interpreter& interpreter, std::string_view source, const std::u16string& sourceName,
                     const std::u16string& frameName) {
    return runAtTopLevel([&] { runProgram(interpreter, source, sourceName, frameName); });
}

RunOutcome runScriptFile(eval::Interpreter& interpreter, const std::string& file) {
    return runAtTopLevel([&] {
        if (file == kStandardInput) {
            std::ostringstream content;
            content << std::cin.rdbuf();
            std::string source = content.str();
            eval::dropByteOrderMark(source);
            return runProgram(interpreter, source, u"<stdin>", u"stdin");
        }
        const std::string source = eval::readScript(file);
        const std::u16string name = text::utf8ToUtf16(std::filesystem::path(file).stem().string());
        runProgram(interpreter, source, text::utf8ToUtf16(file), name);
    });
}

}  // namespace orrery::shell::startup
