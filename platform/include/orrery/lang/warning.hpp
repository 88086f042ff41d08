// The record of one issued warning, as the warning log keeps and compares it.
#pragma once

#include <orrery/export.hpp>
#include <orrery/lang/printf_argument.hpp>
#include <orrery/lang/stack_frame.hpp>
#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace orrery::lang::diagnostic {

/// One issued warning: a plain value that owns its texts and lists, so copies are
/// independent. The setters store what they are given without checking it, except
/// that the conversions from interpreter values check the value's shape.
class ORRERY_API Warning {
public:
    /// An empty identifier, message and format, no arguments, no stack, time 0, enabled.
    Warning() = default;

    /// The message identifier ("component:mnemonic"); empty for a warning without one.
    const std::string& getIdentifier() const noexcept { return identifier_; }
    /// The message as displayed, after formatting.
    const std::u16string& getMessage() const noexcept { return message_; }
    /// The format from which the message was made.
    const std::u16string& getFormat() const noexcept { return format_; }
    /// The values substituted into the format, in order.
    const std::vector<PrintfArgument>& getArguments() const noexcept { return arguments_; }
    /// The call stack at the moment of issue, innermost frame first.
    const std::vector<StackFrame>& getStack() const noexcept { return stack_; }
    /// The moment of issue as a local serial day number.
    double getTime() const noexcept { return time_; }
    /// True when the warning was issued while disabled (logged, not displayed).
    bool getWasDisabled() const noexcept { return wasDisabled_; }

    void setIdentifier(std::string identifier) { identifier_ = std::move(identifier); }
    void setMessage(std::u16string message) { message_ = std::move(message); }
    void setFormat(std::u16string format) { format_ = std::move(format); }
    void setArguments(std::vector<PrintfArgument> arguments) { arguments_ = std::move(arguments); }
    void setStack(std::vector<StackFrame> stack) { stack_ = std::move(stack); }
    void setTime(double time) noexcept { time_ = time; }
    void setWasDisabled(bool wasDisabled) noexcept { wasDisabled_ = wasDisabled; }

    /// Sets the time to the current local wall-clock time.
    void timestamp();

    /// The arguments as a new 1-by-N cell: each integer or double as a scalar of its
    /// own class (int32, uint32, int64, uint64, double), each text as a char row.
    value::ValueArrayPtr getArgumentsAsValueArray() const;
    /// Replaces the arguments from a cell of the shape the getter makes: an empty
    /// cell or a cell vector whose elements are int32, uint32, int64, uint64 or double
    /// scalars or texts (char rows or string scalars). Raises
    /// "ORRERY:warning:badArguments" for anything but an empty or vector cell, and
    /// "ORRERY:warning:badArgument" (with the element's position from 1) for an
    /// element of another kind; the arguments are unchanged then.
    void setArguments(const value::ValueArray* arguments);
    /// Refused at compile time: "no value" is not a list of arguments.
    void setArguments(std::nullptr_t) = delete;

    /// The stack as a new N-by-1 struct with fields file, name (char rows) and line
    /// (double scalar), innermost frame first.
    value::ValueArrayPtr getStackAsValueArray() const;
    /// Replaces the stack from a struct of the shape the getter makes: empty, or a
    /// struct vector with the fields file, name and line. Raises
    /// "ORRERY:warning:badStack" for another class, a matrix or a missing field, and
    /// "ORRERY:warning:badStackFrame" (with the frame's position from 1) when a file
    /// or name is not a text or a line is not a whole number from 0 to 4294967295;
    /// the stack is unchanged then.
    void setStack(const value::ValueArray* stack);
    /// Refused at compile time: "no value" is not a stack.
    void setStack(std::nullptr_t) = delete;

    /// Equal in every field; doubles compare as in operator<.
    bool operator==(const Warning& other) const;
    /// Exactly !(*this == other).
    bool operator!=(const Warning& other) const;
    /// A strict weak ordering over whole records, consistent with ==: by time of
    /// issue first, then identifier, message, format, arguments, stack and the
    /// disabled flag (see warning.cpp for the details).
    bool operator<(const Warning& other) const;

private:
    std::string identifier_;
    std::u16string message_;
    std::u16string format_;
    std::vector<PrintfArgument> arguments_;
    std::vector<StackFrame> stack_;
    double time_ = 0;
    bool wasDisabled_ = false;
};

}  // namespace orrery::lang::diagnostic
