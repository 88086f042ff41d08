// Stack use measured as the distance from the outermost run's frame.
#include "shell/eval/stack_budget.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/except/throw_message.hpp>

#include <pthread.h>

#include <algorithm>

namespace orrery::shell::eval {
namespace {

// Kept free below the budget for what runs past the last check: built-ins,
// display and the nested-value walks, which stop at their own depth limits.
constexpr std::size_t kReserve = std::size_t{2} << 20;

thread_local std::uintptr_t base = 0;
thread_local std::size_t budget = 0;

// The caller's frame; the real stack even where a sanitizer keeps locals elsewhere.
[[gnu::always_inline]] inline std::uintptr_t here() {
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

// The size of this thread's stack: the session thread's own, or the main
// thread's limit.
std::size_t stackSizeOfThisThread() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) return 0;
    void* lowest = nullptr;
    std::size_t size = 0;
    if (pthread_attr_getstack(&attributes, &lowest, &size) != 0) size = 0;
    pthread_attr_destroy(&attributes);
    return size;
}

// All of the stack but the reserve (an eighth of it, at least kReserve); half
// of a stack too small for that.
std::size_t budgetOfThisThread() {
    const std::size_t size = stackSizeOfThisThread();
    const std::size_t reserve = std::max(kReserve, size / 8);
    return size > 2 * reserve ? size - reserve : size / 2;
}

}  // namespace

StackBudget::StackBudget() {
    if (base != 0) return;
    base = here();
    budget = budgetOfThisThread();
    opened_ = true;
}

StackBudget::~StackBudget() {
    if (opened_) base = 0;
}

void StackBudget::check() {
    if (base == 0) return;
    const std::uintptr_t now = here();
    // the stack grows downwards on the machines this runs on
    if (now < base && base - now > budget) except::throwMessage(TooDeepToRun());
}

}  // namespace orrery::shell::eval
