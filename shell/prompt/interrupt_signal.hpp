// Ctrl-C at the prompt: SIGINT asks the running statement to stop instead of
// ending the process.
#pragma once

#include <csignal>

namespace orrery::shell::prompt {

/// While it lives, SIGINT only raises the evaluator's interruption flag. The
/// handler is installed without SA_RESTART, so a read waiting for a key
/// returns early and the line being typed can be dropped.
class InterruptSignal {
public:
    InterruptSignal();
    ~InterruptSignal();
    InterruptSignal(const InterruptSignal&) = delete;
    InterruptSignal& operator=(const InterruptSignal&) = delete;

private:
    struct sigaction previous_ {};
};

}  // namespace orrery::shell::prompt
