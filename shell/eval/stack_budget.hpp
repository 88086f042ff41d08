// A bound on how much of the machine stack one run may use, so that deeply
// nested calls and operations end with a language error, not a crash.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orrery::shell::eval {

/// Measures stack use from the outermost point where it was opened.
class StackBudget {
public:
    /// Opens the budget at the caller's stack position when none is open; the
    /// budget is the thread's stack less a reserve of an eighth, at least 2 MiB.
    StackBudget();
    ~StackBudget();
    StackBudget(const StackBudget&) = delete;
    StackBudget& operator=(const StackBudget&) = delete;

    /// Raises "ORRERY:shell:tooDeepToRun" when the stack below the opening
    /// point has grown beyond the budget.
    static void check();

private:
    bool opened_ = false;
};

}  // namespace orrery::shell::eval
