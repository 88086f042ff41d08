// Installing and removing the prompt's SIGINT handler.
#include "shell/prompt/interrupt_signal.hpp"

#include "shell/eval/interrupt.hpp"

namespace orrery::shell::prompt {
namespace {

extern "C" void onInterrupt(int /*signal*/) { eval::requestInterrupt(); }

}  // namespace

InterruptSignal::InterruptSignal() {
    struct sigaction action {};
    action.sa_handler = onInterrupt;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &previous_);
}

InterruptSignal::~InterruptSignal() { sigaction(SIGINT, &previous_, nullptr); }

}  // namespace orrery::shell::prompt
