// The interpreter's call stack of language functions and scripts.
#pragma once

#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orrery::interp {

/// One frame: the file, the function or script name, and the line being run.
struct StackEntry {
    std::u16string file;
    std::u16string name;
    std::uint32_t line = 0;
};

/// Pushes a frame on construction and pops it on destruction.
class ORRERY_API FrameGuard {
public:
    explicit FrameGuard(StackEntry entry);
    ~FrameGuard();
    FrameGuard(const FrameGuard&) = delete;
    FrameGuard& operator=(const FrameGuard&) = delete;
};

/// Sets the line of the innermost frame (no effect on an empty stack).
ORRERY_API void setCurrentLine(std::uint32_t line);

/// The frames, innermost first.
ORRERY_API std::vector<StackEntry> currentFrames();

/// The stack query: an N-by-1 struct (file, name, line), innermost first,
/// leaving out the `skip` innermost frames.
ORRERY_API value::ValueArray currentStack(std::size_t skip = 0);

}  // namespace orrery::interp
