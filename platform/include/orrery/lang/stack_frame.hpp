// One frame of the call stack at which a warning was issued.
#pragma once

#include <compare>
#include <cstdint>
#include <string>

namespace orrery::lang {

/// The file, the function or script name, and the line of one frame.
struct StackFrame {
    std::u16string file;
    std::u16string name;
    std::uint32_t line = 0;

    friend bool operator==(const StackFrame&, const StackFrame&) = default;
    /// Orders by file, then name, then line.
    friend std::strong_ordering operator<=>(const StackFrame&, const StackFrame&) = default;
};

}  // namespace orrery::lang
