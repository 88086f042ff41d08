// Stack use measured as the distance from the outermost run's frame.
#include "shell/eval/stack_budget.hpp"

#include "shell/eval/eval_messages.hpp"

#include <orrery/except/throw_message.hpp>

#include <sys/resource.h>

#include <algorithm>

namespace orrery::shell::eval {
namespace {

constexpr std::size_t kMostBudget = std::size_t{4} << 20;

thread_local std::uintptr_t base = 0;
thread_local std::size_t budget = 0;

// The caller's frame; the real stack even where a sanitizer keeps locals elsewhere.
[[gnu::always_inline]] inline std::uintptr_t here() {
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

std::size_t budgetOfThisThread() {
    rlimit limit{};
    if (getrlimit(RLIMIT_STACK, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return kMostBudget;
    return std::min(kMostBudget, static_cast<std::size_t>(limit.rlim_cur) / 2);
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
