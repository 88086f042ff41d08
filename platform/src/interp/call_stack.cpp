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

void CallStack::push(std::u16string_view file, std::u16string_view name, std::uint32_t line) {
    if (depth_ == frames_.size()) frames_.emplace_back();
    StackEntry& frame = frames_[depth_];
    // the same function entered again at this depth finds its texts in place
    if (frame.file != file) frame.file.assign(file);
    if (frame.name != name) frame.name.assign(name);
    frame.line = line;
    ++depth_;
}

FrameGuard::FrameGuard(const StackEntry& entry) : stack_(currentCallStack()) {
    if (stack_ != nullptr) stack_->push(entry.file, entry.name, entry.line);
}

FrameGuard::~FrameGuard() {
    if (stack_ != nullptr) stack_->pop();
}

void setCurrentLine(std::uint32_t line) {
    CallStack* stack = currentCallStack();
    if (stack != nullptr && !stack->empty()) stack->back().line = line;
}

std::vector<StackEntry> currentFrames() {
    const CallStack* stack = currentCallStack();
    if (stack == nullptr) return {};
    std::vector<StackEntry> frames;
    frames.reserve(stack->size());
    for (std::size_t i = stack->size(); i-- > 0;) frames.push_back((*stack)[i]);
    return frames;
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
