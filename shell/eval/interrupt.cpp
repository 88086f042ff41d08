// The interruption flag and its check.
#include "shell/eval/interrupt.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/except/throw_message.hpp>

#include <atomic>

namespace orrery::shell::eval {
namespace {

std::atomic<bool> requested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "the flag is set from a signal handler");

}  // namespace

void requestInterrupt() noexcept { requested.store(true, std::memory_order_relaxed); }

bool takeInterrupt() noexcept { return requested.exchange(false, std::memory_order_relaxed); }

void checkInterrupt() {
    if (takeInterrupt()) except::throwMessage(Interrupted());
}

bool isInterruption(const except::QException& error) noexcept {
    return error.identifier() == Interrupted::identifierText;
}

}  // namespace orrery::shell::eval
