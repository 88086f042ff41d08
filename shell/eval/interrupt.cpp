// The interruption flag and its check.
#include "shell/eval/interrupt.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/except/throw_message.hpp>

#include <atomic>
#include <chrono>
#include <cstdint>

namespace orrery::shell::eval {
namespace {

std::atomic<bool> requested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "the flag is set from a signal handler");

// The bound of limitRun; only the interpreter's thread reads and sets it.
struct RunLimit {
    bool active = false;
    std::uint64_t stepsLeft = 0;
    std::chrono::steady_clock::time_point deadline;
};
RunLimit runLimit;

bool runLimitReached() {
    if (!runLimit.active) return false;
    if (runLimit.stepsLeft > 0 && std::chrono::steady_clock::now() < runLimit.deadline) {
        --runLimit.stepsLeft;
        return false;
    }
    runLimit.stepsLeft = 0;
    return true;
}

}  // namespace

void requestInterrupt() noexcept { requested.store(true, std::memory_order_relaxed); }

bool takeInterrupt() noexcept { return requested.exchange(false, std::memory_order_relaxed); }

void checkInterrupt() {
    if (takeInterrupt() || runLimitReached()) except::throwMessage(Interrupted());
}

void limitRun(std::uint64_t steps, std::chrono::milliseconds time) {
    runLimit = {steps > 0, steps, std::chrono::steady_clock::now() + time};
}

bool isInterruption(const except::QException& error) noexcept {
    return error.identifier() == Interrupted::identifierText;
}

}  // namespace orrery::shell::eval
