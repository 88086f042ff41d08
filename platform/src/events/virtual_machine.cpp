// The virtual machine and the thread's current-machine pointer.
#include <orrery/events/virtual_machine.hpp>

namespace orrery::events {
namespace {
thread_local VirtualMachine* currentMachine = nullptr;
}  // namespace

VirtualMachine::VirtualMachine() : publisher_(std::make_shared<EventPublisher>()) {}

VirtualMachine::~VirtualMachine() = default;

std::shared_ptr<EventPublisher> VirtualMachine::eventPublisher() const { return publisher_; }

VirtualMachine* currentLocalVirtualMachine() { return currentMachine; }

VirtualMachineScope::VirtualMachineScope()
    : machine_(std::make_unique<VirtualMachine>()), previous_(currentMachine) {
    currentMachine = machine_.get();
}

VirtualMachineScope::~VirtualMachineScope() { currentMachine = previous_; }

}  // namespace orrery::events
