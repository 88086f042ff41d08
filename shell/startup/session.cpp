// Top-level runs of source text and error reports.
#include "shell/startup/session.hpp"

#include "shell/eval/user_error.hpp"
#include "shell/lang/parser.hpp"
#include "shell/startup/startup_messages.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace orrery::shell::startup {

void reportError(const except::QException& error) {
    eval::recordLastError(error);
    console::consoleWrite(console::ConsoleStream::Error, eval::uncaughtErrorText(error));
}

bool runSource(eval::Interpreter& interpreter, std::string_view source, const std::u16string& sourceName,
               const std::u16string& frameName) {
    try {
        const lang::Program program = lang::parse(source, sourceName);
        interpreter.run(program, sourceName, frameName);
        return true;
    } catch (const except::QException& error) {
        reportError(error);
    } catch (const except::IMsgIDException& failure) {
        reportError(eval::userErrorFrom(failure));
    } catch (const std::bad_alloc&) {
        reportError(eval::outOfMemoryError());
    }
    return false;
}

bool runScriptFile(eval::Interpreter& interpreter, const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    if (!in || std::filesystem::is_directory(file)) {
        try {
            except::throwMessage(CannotRead(text::utf8ToUtf16(file)));
        } catch (const except::IMsgIDException& failure) {
            reportError(eval::userErrorFrom(failure));
            return false;
        }
    }
    const std::u16string name = text::utf8ToUtf16(std::filesystem::path(file).stem().string());
    return runSource(interpreter, content.str(), text::utf8ToUtf16(file), name);
}

}  // namespace orrery::shell::startup
