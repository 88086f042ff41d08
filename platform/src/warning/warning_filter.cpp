// The stack of warning-output filters and its RAII registration.
#include "warning/warning_filter_stack.hpp"

#include <orrery/warning/warning_operation.hpp>

#include <memory>
#include <mutex>
#include <vector>

namespace orrery::warning {
namespace {

struct Registration {
    std::size_t id;
    std::shared_ptr<const WarningFilterFunction> filter;
};

struct FilterStack {
    std::mutex mutex;
    std::vector<Registration> registrations;  // oldest first
    std::size_t nextId = 1;
};

// Never destroyed: objects destroyed at exit (such as a warning manager's log)
// may still pop their filters after every function-local static is gone.
FilterStack& filterStack() {
    static auto* const stack = new FilterStack();
    return *stack;
}

}  // namespace

WarningFilter::WarningFilter(WarningFilterFunction filter) {
    auto shared = std::make_shared<const WarningFilterFunction>(std::move(filter));
    FilterStack& stack = filterStack();
    const std::lock_guard lock(stack.mutex);
    id_ = stack.nextId++;
    stack.registrations.push_back(Registration{id_, std::move(shared)});
}

WarningFilter::~WarningFilter() {
    FilterStack& stack = filterStack();
    const std::lock_guard lock(stack.mutex);
    std::erase_if(stack.registrations, [this](const Registration& entry) { return entry.id == id_; });
}

bool runWarningFilters(std::u16string& text) {
    // A copy, so that a filter may push or pop filters (or warn) while it runs.
    std::vector<Registration> snapshot;
    {
        FilterStack& stack = filterStack();
        const std::lock_guard lock(stack.mutex);
        snapshot = stack.registrations;
    }
    for (auto entry = snapshot.rbegin(); entry != snapshot.rend(); ++entry) {
        const WarningFilterFunction& filter = *entry->filter;
        if (filter && !filter(text)) return false;
    }
    return true;
}

}  // namespace orrery::warning
