// The call stack kept by the host and its query as a stack structure.
#include <orrery/interp/call_stack.hpp>

namespace orrery::interp {
namespace {
std::vector<StackEntry>& frames() {
    static std::vector<StackEntry> stack;  // outermost first
    return stack;
}
}  // namespace

FrameGuard::FrameGuard(StackEntry entry) { frames().push_back(std::move(entry)); }
FrameGuard::~FrameGuard() { frames().pop_back(); }

void setCurrentLine(std::uint32_t line) {
    if (!frames().empty()) frames().back().line = line;
}

std::vector<StackEntry> currentFrames() { return {frames().rbegin(), frames().rend()}; }

value::ValueArray currentStack(std::size_t skip) {
    if (frames().size() <= skip) {
        // Outside any function the stack is always the same empty array: share one.
        static const auto empty = value::ValueArray::stackStructure(0);
        return empty;
    }
    const auto innermostFirst = currentFrames();
    const std::size_t count = skip < innermostFirst.size() ? innermostFirst.size() - skip : 0;
    auto stack = value::ValueArray::stackStructure(count);
    for (std::size_t i = 0; i < count; ++i) {
        const StackEntry& entry = innermostFirst[i + skip];
        stack.setField(i, "file", value::ValueArray::chars(entry.file));
        stack.setField(i, "name", value::ValueArray::chars(entry.name));
        stack.setField(i, "line", value::ValueArray::scalar(entry.line));
    }
    return stack;
}

}  // namespace orrery::interp
