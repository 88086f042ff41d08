// The standard console and the writes to the current machine's console.
#include <orrery/console/console_sink.hpp>
#include <orrery/interp/virtual_machine.hpp>

#include <cstdio>

namespace orrery::console {
namespace {

class StandardConsole final : public ConsoleSink {
public:
    void write(ConsoleStream stream, std::string_view utf8) override {
        std::FILE* const file = stream == ConsoleStream::Output ? stdout : stderr;
        std::fwrite(utf8.data(), 1, utf8.size(), file);
        std::fflush(file);
    }
};

}  // namespace

ConsoleSink::~ConsoleSink() = default;

ConsoleSink& standardConsole() noexcept {
    // Never destroyed: text may still be written while static objects go at exit.
    static auto* const console = new StandardConsole();  // NOLINT(bugprone-unhandled-exception-at-new): at start-up
    return *console;
}

void consoleWrite(ConsoleStream stream, std::string_view utf8) {
    const interp::VirtualMachine* machine = interp::currentLocalVirtualMachine();
    (machine != nullptr ? machine->console() : standardConsole()).write(stream, utf8);
}

}  // namespace orrery::console
