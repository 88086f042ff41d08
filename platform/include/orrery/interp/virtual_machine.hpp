// The interpreter's virtual machine: one interpreter instance's state, and the
// thread's current machine that the platform's services act on.
#pragma once

#include <orrery/console/console_sink.hpp>
#include <orrery/events/event_publisher.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/export.hpp>
#include <orrery/interp/call_stack.hpp>

#include <memory>

namespace orrery::warning {
struct WarningManagerContext;
class WarningFilterStack;
}  // namespace orrery::warning

namespace orrery::interp {

/// One interpreter instance. It owns everything that instance keeps between
/// calls: the event publisher, the warning manager context, the last error, the
/// call stack, the stack of warning-output filters and the console sink.
class ORRERY_API VirtualMachine {
public:
    VirtualMachine();
    ~VirtualMachine();
    VirtualMachine(const VirtualMachine&) = delete;
    VirtualMachine& operator=(const VirtualMachine&) = delete;

    /// The machine's publisher; never null. Holders may keep it beyond the machine.
    std::shared_ptr<events::EventPublisher> eventPublisher() const;

    /// The machine's warning manager context; never null, lives as long as the machine.
    warning::WarningManagerContext* warningManagerContext() const noexcept { return warningContext_.get(); }

    /// The last error the interpreter recorded (see QException::LastError).
    except::QException::LastError::Kept& lastError() noexcept { return lastError_; }

    /// The call stack, outermost frame first.
    CallStack& callStack() noexcept { return callStack_; }

    /// The stack of warning-output filters; never null. Filters hold it weakly.
    const std::shared_ptr<warning::WarningFilterStack>& warningFilters() const noexcept { return warningFilters_; }

    /// Where the machine's console text goes: the standard console unless redirected.
    console::ConsoleSink& console() const noexcept { return console_ ? *console_ : console::standardConsole(); }

    /// Redirects the machine's console text to sink (null: the standard console);
    /// answers the sink it replaces (null for the standard console).
    std::shared_ptr<console::ConsoleSink> setConsole(std::shared_ptr<console::ConsoleSink> sink) noexcept;

private:
    // Destroyed in reverse order: the warning manager context goes first, since
    // the log it owns may remove a warning filter or write to the console when
    // it is destroyed.
    std::shared_ptr<console::ConsoleSink> console_;
    std::shared_ptr<warning::WarningFilterStack> warningFilters_;
    CallStack callStack_;
    except::QException::LastError::Kept lastError_;
    std::shared_ptr<events::EventPublisher> publisher_;
    std::unique_ptr<warning::WarningManagerContext> warningContext_;
};

/// The virtual machine current on the calling thread, or null when there is none.
/// The pointer does not own the machine.
ORRERY_API VirtualMachine* currentLocalVirtualMachine() noexcept;

/// Creates a virtual machine and makes it current on the calling thread for the
/// scope's lifetime; on destruction the one that was current before (or none)
/// becomes current again and then the machine is destroyed. Scopes must end in
/// the reverse order of their creation, on the thread that created them.
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

}  // namespace orrery::interp
