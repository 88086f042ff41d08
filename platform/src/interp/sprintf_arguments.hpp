// The data of a sprintf call, handed out element by element to the conversions.
#pragma once

#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <span>
#include <string>
#include <variant>

namespace orrery::interp::detail {

/// A number to format. `exact` holds the value as a 64-bit integer when it is a
/// whole number that fits one (int64 and uint64 elements keep every digit).
struct Number {
    double value = 0;
    std::variant<std::monostate, std::int64_t, std::uint64_t> exact;
};

/// A text to format: a string element ("<missing>" for a missing one) or the rest
/// of a char array taken by %s.
struct Text {
    std::u16string units;
};

using Element = std::variant<Number, Text>;

/// The number with its exact integer form filled in when it has one.
Number makeNumber(double value);

/// Walks the elements of all arguments in order, each argument column-major.
/// Numeric, logical and char elements are numbers (a char counts as its code);
/// string elements are texts.
class ArgumentCursor {
public:
    /// Cells, structs and objects raise "ORRERY:sprintf:unsupportedArgument"; a
    /// null argument raises "ORRERY:invalidInput".
    explicit ArgumentCursor(std::span<const value::ValueArray* const> arguments);

    /// True when no element is left.
    bool exhausted() const noexcept { return argument_ == arguments_.size(); }

    /// The next element. Must not be called when exhausted.
    Element next();

    /// What %s takes: the rest of the current char array as one text, otherwise
    /// the next element. Must not be called when exhausted.
    Element nextForText();

private:
    const value::ValueArray& current() const { return *arguments_[argument_]; }
    void advance(std::size_t elements);
    void skipEmptyArguments();

    std::span<const value::ValueArray* const> arguments_;
    std::size_t argument_ = 0;
    std::size_t element_ = 0;
};

}  // namespace orrery::interp::detail
