// The prompt on libedit's line editor.
#include "shell/prompt/prompt.hpp"

#include "shell/eval/interrupt.hpp"
#include "shell/lang/parser.hpp"
#include "shell/prompt/completion.hpp"
#include "shell/prompt/interrupt_signal.hpp"
#include "shell/prompt/terminal_input.hpp"
#include "shell/startup/session.hpp"

#include <orrery/console/console_sink.hpp>

#include <readline.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

namespace orrery::shell::prompt {
namespace {

constexpr const char* kPrompt = ">> ";
constexpr const char* kContinuationPrompt = ".. ";
constexpr int kHistoryLength = 1000;

struct FreeLine {
    void operator()(char* line) const noexcept { std::free(line); }
};
using Line = std::unique_ptr<char, FreeLine>;

/// Holds an exclusive lock on a file while it lives (none when it cannot be opened).
class FileLock {
public:
    explicit FileLock(const std::filesystem::path& file)
        : descriptor_(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
        if (descriptor_ >= 0) ::flock(descriptor_, LOCK_EX);
    }
    ~FileLock() {
        if (descriptor_ >= 0) ::close(descriptor_);  // closing releases the lock
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int descriptor_;
};

/// The line editor with the history loaded. Each line added is saved at once,
/// so a session that ends abruptly keeps what was typed. Sessions share the
/// file: under its lock the history is read again, the line added and the file
/// written, so two sessions at once both keep their lines, interleaved as they
/// were typed, and the history shows both.
class History {
public:
    History() : file_(historyFile()) {
        // keys come through our reader (UTF-8, Ctrl-C); signals stay ours
        rl_getc_function = readTerminalCharacter;
        rl_catch_signals = 0;
        using_history();
        stifle_history(kHistoryLength);
        if (!file_.empty()) read_history(file_.c_str());
    }
    History(const History&) = delete;
    History& operator=(const History&) = delete;
    ~History() = default;

    void add(const std::string& line) const {
        if (line.find_first_not_of(" \t") == std::string::npos) return;
        if (file_.empty()) {
            add_history(line.c_str());
            return;
        }
        const FileLock lock(file_);
        clear_history();
        read_history(file_.c_str());
        add_history(line.c_str());
        write_history(file_.c_str());
    }

private:
    std::filesystem::path file_;
};

bool isExitWord(const std::string& line) {
    const auto first = line.find_first_not_of(" \t");
    const auto last = line.find_last_not_of(" \t;");
    if (first == std::string::npos) return false;
    const std::string word = line.substr(first, last - first + 1);
    return word == "exit" || word == "quit";
}

/// Joins lines until they make complete statements, then runs them.
class LineRunner {
public:
    explicit LineRunner(eval::Interpreter& interpreter) : interpreter_(interpreter) {}

    /// Takes one line; false when it is `exit` or `quit` outside a block.
    bool feed(const std::string& text) {
        if (pending_.empty() && isExitWord(text)) return false;
        pending_ += text + "\n";
        if (lang::needsMoreInput(pending_)) return true;
        startup::runSource(interpreter_, pending_, u"<prompt>", u"");
        pending_.clear();
        return true;
    }
    bool midStatement() const { return !pending_.empty(); }
    void drop() { pending_.clear(); }

private:
    eval::Interpreter& interpreter_;
    std::string pending_;
};

}  // namespace

std::filesystem::path historyFile() {
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') return {};
    return std::filesystem::path(home) / ".orrery_history";
}

void runPrompt(eval::Interpreter& interpreter) {
    LineRunner runner(interpreter);
    if (isatty(STDIN_FILENO) == 0) {  // piped input: plain lines, kept byte for byte
        std::string text;
        while (std::getline(std::cin, text) && runner.feed(text)) {
        }
        console::consoleWrite(console::ConsoleStream::Output, "\n");
        return;
    }
    std::setlocale(LC_CTYPE, "");  // the line editor reads and returns text in the terminal's encoding
    const History history;
    const Completion completion(interpreter);
    const InterruptSignal interruptSignal;
    for (;;) {
        eval::takeInterrupt();  // a Ctrl-C that came after the last statement's check
        const Line line(readline(runner.midStatement() ? kContinuationPrompt : kPrompt));
        if (eval::takeInterrupt()) {  // drop the half-typed line or block
            runner.drop();
            console::consoleWrite(console::ConsoleStream::Output, "\n");
            continue;
        }
        if (!line) break;
        const std::string text(line.get());
        history.add(text);
        if (!runner.feed(text)) break;
    }
    console::consoleWrite(console::ConsoleStream::Output, "\n");
}

}  // namespace orrery::shell::prompt
