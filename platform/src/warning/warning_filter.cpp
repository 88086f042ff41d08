// The stack of warning-output filters and its RAII registration.
#include "warning/warning_filter_stack.hpp"

#include <orrery/interp/virtual_machine.hpp>

namespace orrery::warning {

std::size_t WarningFilterStack::push(WarningFilterFunction filter) {
    auto shared = std::make_shared<const WarningFilterFunction>(std::move(filter));
    const std::lock_guard lock(mutex_);
    const std::size_t id = nextId_++;
    registrations_.push_back(Registration{id, std::move(shared)});
    return id;
}

void WarningFilterStack::remove(std::size_t id) {
    const std::lock_guard lock(mutex_);
    std::erase_if(registrations_, [id](const Registration& entry) { return entry.id == id; });
}

bool WarningFilterStack::run(std::u16string& text) const {
    // A copy, so that a filter may push or pop filters (or warn) while it runs.
    std::vector<Registration> snapshot;
    {
        const std::lock_guard lock(mutex_);
        snapshot = registrations_;
    }
    for (auto entry = snapshot.rbegin(); entry != snapshot.rend(); ++entry) {
        const WarningFilterFunction& filter = *entry->filter;
        if (filter && !filter(text)) return false;
    }
    return true;
}

bool runWarningFilters(std::u16string& text) {
    const interp::VirtualMachine* machine = interp::currentLocalVirtualMachine();
    return machine == nullptr || machine->warningFilters()->run(text);
}

WarningFilter::WarningFilter(WarningFilterFunction filter) {
    if (const interp::VirtualMachine* machine = interp::currentLocalVirtualMachine()) {
        id_ = machine->warningFilters()->push(std::move(filter));
        stack_ = machine->warningFilters();
    }
}

WarningFilter::~WarningFilter() {
    if (const auto stack = stack_.lock()) stack->remove(id_);
}

}  // namespace orrery::warning
