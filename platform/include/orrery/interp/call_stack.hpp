// The interpreter's call stack of language functions and scripts.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::interp {

/// One frame: the file, the function or script name, and the line being run.
struct StackEntry {
    std::u16string file;
    std::u16string name;
    std::uint32_t line = 0;
};

/// A virtual machine's frames, outermost first. A frame that is left keeps its
/// texts' storage for the next one at its depth, so entering a function again
/// and again does not allocate.
class ORRERY_API CallStack {
public:
    void push(std::u16string_view file, std::u16string_view name, std::uint32_t line);
    void pop() noexcept { --depth_; }
    std::size_t size() const noexcept { return depth_; }
    bool empty() const noexcept { return depth_ == 0; }
    StackEntry& back() noexcept { return frames_[depth_ - 1]; }
    const StackEntry& operator[](std::size_t i) const noexcept { return frames_[i]; }

private:
    std::vector<StackEntry> frames_;  // the first depth_ are the stack
    std::size_t depth_ = 0;
};

/// Pushes a frame on the current machine's call stack on construction and pops
/// it from that same stack on destruction; does nothing without a machine. The
/// guard must end before the machine it pushed on.
class ORRERY_API FrameGuard {
public:
    explicit FrameGuard(const StackEntry& entry);
    ~FrameGuard();
    FrameGuard(const FrameGuard&) = delete;
    FrameGuard& operator=(const FrameGuard&) = delete;

private:
    CallStack* stack_;
};

/// Sets the line of the current machine's innermost frame (no effect on an
/// empty stack or without a machine).
ORRERY_API void setCurrentLine(std::uint32_t line);

/// The current machine's frames, innermost first (none without a machine).
ORRERY_API std::vector<StackEntry> currentFrames();

/// The stack query on the current machine: an N-by-1 struct (file, name, line),
/// innermost first, leaving out the `skip` innermost frames.
ORRERY_API value::ValueArray currentStack(std::size_t skip = 0);

}  // namespace orrery::interp
