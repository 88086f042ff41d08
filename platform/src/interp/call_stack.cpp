// The call stack of the current virtual machine and its query as a stack structure.
#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/virtual_machine.hpp>

namespace orrery::interp {
namespace {

// The current machine's stack, or null without a machine.
CallStack* currentCallStack() noexcept {
    VirtualMachine* machine = currentLocalVirtualMachine();
    return machine != nullptr ? &machine->callStack() : nullptr;
}

}  // namespace

FrameGuard::FrameGuard(StackEntry entry) : stack_(currentCallStack()) {
    if (stack_ != nullptr) stack_->push_back(std::move(entry));
}

FrameGuard::~FrameGuard() {
    if (stack_ != nullptr) stack_->pop_back();
}

void setCurrentLine(std::uint32_t line) {
    CallStack* stack = currentCallStack();
    if (stack != nullptr && !stack->empty()) stack->back().line = line;
}

std::vector<StackEntry> currentFrames() {
    const CallStack* stack = currentCallStack();
    if (stack == nullptr) return {};
    return {stack->rbegin(), stack->rend()};
}

value::ValueArray currentStack(std::size_t skip) {
    const CallStack* stack = currentCallStack();
    if (stack == nullptr || stack->size() <= skip) {
        // Outside any function the stack is always the same empty array: share one.
        static const auto empty = value::ValueArray::stackStructure(0);
        return empty;
    }
    const std::size_t count = stack->size() - skip;
    auto result = value::ValueArray::stackStructure(count);
    for (std::size_t i = 0; i < count; ++i) {
        const StackEntry& entry = (*stack)[count - 1 - i];  // innermost first, skipping the innermost `skip`
        result.setField(i, "file", value::ValueArray::chars(entry.file));
        result.setField(i, "name", value::ValueArray::chars(entry.name));
        result.setField(i, "line", value::ValueArray::scalar(entry.line));
    }
    return result;
}

}  // namespace orrery::interp
