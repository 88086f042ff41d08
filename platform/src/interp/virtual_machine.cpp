// The virtual machine and the thread's current-machine pointer.
#include "warning/warning_filter_stack.hpp"
#include "warning/warning_manager_context.hpp"

#include <orrery/interp/virtual_machine.hpp>

#include <utility>

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

std::shared_ptr<console::ConsoleSink> VirtualMachine::setConsole(std::shared_ptr<console::ConsoleSink> sink) noexcept {
    return std::exchange(console_, std::move(sink));
}

VirtualMachine* currentLocalVirtualMachine() noexcept { return currentMachine; }

VirtualMachineScope::VirtualMachineScope() : machine_(std::make_unique<VirtualMachine>()), previous_(currentMachine) {
    currentMachine = machine_.get();
}

VirtualMachineScope::~VirtualMachineScope() { currentMachine = previous_; }

}  // namespace orrery::interp
