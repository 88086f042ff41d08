// The interpreter's virtual machine as the module sees it: the owner of the event publisher.
#pragma once

#include <orrery/events/event_publisher.hpp>
#include <orrery/export.hpp>

#include <memory>

namespace orrery::events {

/// One interpreter instance's virtual machine. It owns the event publisher that
/// the interpreter's components publish to.
class ORRERY_API VirtualMachine {
public:
    VirtualMachine();
    ~VirtualMachine();
    VirtualMachine(const VirtualMachine&) = delete;
    VirtualMachine& operator=(const VirtualMachine&) = delete;

    /// The machine's publisher; never null. Holders may keep it beyond the machine.
    std::shared_ptr<EventPublisher> eventPublisher() const;

private:
    std::shared_ptr<EventPublisher> publisher_;
};

/// The virtual machine current on the calling thread, or null when there is none.
/// The pointer does not own the machine.
ORRERY_API VirtualMachine* currentLocalVirtualMachine();

/// Creates a virtual machine and makes it current on the calling thread for the
/// scope's lifetime; on destruction the machine is destroyed and the one that was
/// current before (or none) becomes current again. Scopes must end in the reverse
/// order of their creation, on the thread that created them.
class ORRERY_API VirtualMachineScope {
public:
    VirtualMachineScope();
    ~VirtualMachineScope();
    VirtualMachineScope(const VirtualMachineScope&) = delete;
    VirtualMachineScope& operator=(const VirtualMachineScope&) = delete;

    /// The machine this scope made current.
    VirtualMachine& machine() noexcept { return *machine_; }

private:
    std::unique_ptr<VirtualMachine> machine_;
    VirtualMachine* previous_;
};

}  // namespace orrery::events
