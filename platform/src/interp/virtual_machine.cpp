// The virtual machine and the thread's current-machine pointer.
#include "warning/warning_filter_stack.hpp"
#include "warning/warning_manager_context.hpp"

#include <orrery/interp/virtual_machine.hpp>

namespace orrery::interp {
namespace {
thread_local VirtualMachine* currentMachine = nullptr;
}  // namespace

VirtualMachine::VirtualMachine()
    : warningFilters_(std::make_shared<warning::WarningFilterStack>()),
      publisher_(std::make_shared<events::EventPublisher>()),
      warningContext_(std::make_unique<warning::WarningManagerContext>()) {}

VirtualMachine::~VirtualMachine() = default;

std::shared_ptr<events::EventPublisher> VirtualMachine::eventPublisher() const { return publisher_; }

VirtualMachine* currentLocalVirtualMachine() noexcept { return currentMachine; }

VirtualMachineScope::VirtualMachineScope()
    : machine_(std::make_unique<VirtualMachine>()), previous_(currentMachine) {
    currentMachine = machine_.get();
}

VirtualMachineScope::~VirtualMachineScope() { currentMachine = previous_; }

}  // namespace orrery::interp
