// The capturing sink that replaces a machine's console while a capture lives.
#include <orrery/console/console_capture.hpp>
#include <orrery/console/console_sink.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/interp/virtual_machine.hpp>

namespace orrery::console {

class ConsoleCapture::Buffer final : public ConsoleSink {
public:
    void write(ConsoleStream stream, std::string_view utf8) override {
        (stream == ConsoleStream::Output ? output : error).append(utf8);
    }
    std::string output;
    std::string error;
};

namespace {

interp::VirtualMachine& currentMachine() {
    interp::VirtualMachine* machine = interp::currentLocalVirtualMachine();
    if (machine == nullptr) except::internalError("console", "no virtual machine to capture");
    return *machine;
}

}  // namespace

ConsoleCapture::ConsoleCapture()
    : buffer_(std::make_shared<Buffer>()), machine_(&currentMachine()), previous_(machine_->setConsole(buffer_)) {}

ConsoleCapture::~ConsoleCapture() { machine_->setConsole(std::move(previous_)); }

std::string ConsoleCapture::output() const { return buffer_->output; }
std::string ConsoleCapture::error() const { return buffer_->error; }

void ConsoleCapture::clear() {
    buffer_->output.clear();
    buffer_->error.clear();
}

}  // namespace orrery::console
