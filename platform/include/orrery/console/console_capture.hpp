// Capturing a virtual machine's console, for tests of what the interpreter prints.
#pragma once

#include <orrery/export.hpp>

#include <memory>
#include <string>

namespace orrery::interp {
class VirtualMachine;
}  // namespace orrery::interp

namespace orrery::console {

class ConsoleSink;

/// Redirects the whole console of the current virtual machine to memory for as
/// long as it lives, then gives that machine back the sink it had. Captures of
/// one machine nest and must end in the reverse order of their creation; the
/// capture must end before its machine.
class ORRERY_API ConsoleCapture {
public:
    /// Raises an internal error when no virtual machine is current.
    ConsoleCapture();
    ~ConsoleCapture();
    ConsoleCapture(const ConsoleCapture&) = delete;
    ConsoleCapture& operator=(const ConsoleCapture&) = delete;

    /// What was written to the output stream since the capture began or was cleared.
    std::string output() const;
    /// What was written to the error stream since the capture began or was cleared.
    std::string error() const;
    /// Forgets what was captured so far.
    void clear();

private:
    class Buffer;
    std::shared_ptr<Buffer> buffer_;
    interp::VirtualMachine* machine_;
    std::shared_ptr<ConsoleSink> previous_;
};

}  // namespace orrery::console
