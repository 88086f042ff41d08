// The console: the one way the interpreter's text reaches its output and error
// streams, through the sink of the current virtual machine.
#pragma once

#include <orrery/export.hpp>

#include <string_view>

namespace orrery::console {

/// The two streams of the console.
enum class ConsoleStream { Output, Error };

/// A destination of console text.
class ORRERY_API ConsoleSink {
public:
    ConsoleSink() = default;
    virtual ~ConsoleSink();
    ConsoleSink(const ConsoleSink&) = delete;
    ConsoleSink& operator=(const ConsoleSink&) = delete;

    /// Receives UTF-8 text for one of the streams; calls arrive in the order the
    /// text was written, whichever stream it is for.
    virtual void write(ConsoleStream stream, std::string_view utf8) = 0;
};

/// The process's standard output and standard error. Each write is flushed, so
/// that the two streams reach a terminal or pipe in the order they were written.
/// Lives until the process ends.
ORRERY_API ConsoleSink& standardConsole() noexcept;

/// Writes text to the current virtual machine's console, or to the standard
/// console when there is no machine.
ORRERY_API void consoleWrite(ConsoleStream stream, std::string_view utf8);

}  // namespace orrery::console
