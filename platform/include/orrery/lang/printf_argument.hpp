// One typed argument of a warning's format: an integer, a double or a text.
#pragma once

#include <orrery/export.hpp>

#include <compare>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>

namespace orrery::lang {

/// A value that was substituted into a warning's format. The alternatives keep
/// this order, which is their tag; a single character is a text of length one.
class ORRERY_API PrintfArgument {
public:
    using Value = std::variant<std::int32_t, std::uint32_t, std::int64_t, std::uint64_t, double, std::u16string>;

    /// The int32 zero.
    PrintfArgument() = default;
    PrintfArgument(std::int32_t value) : value_(value) {}
    PrintfArgument(std::uint32_t value) : value_(value) {}
    PrintfArgument(std::int64_t value) : value_(value) {}
    PrintfArgument(std::uint64_t value) : value_(value) {}
    PrintfArgument(double value) : value_(value) {}
    PrintfArgument(std::u16string value) : value_(std::move(value)) {}

    /// The held alternative.
    const Value& value() const noexcept { return value_; }

    /// Returns the type name of the held alternative and writes its value as text
    /// into valueOut, in a form that reads back to the same value:
    /// "int32", "uint32", "int64", "uint64": the decimal number;
    /// "double": the shortest decimal that reads back to the same double, or
    ///   "nan", "-nan", "inf", "-inf";
    /// "char" for a text of exactly one code unit: that unit as a decimal number;
    /// "string" for any other text (also the empty one): the text itself.
    std::u16string getTypeAndValue(std::u16string& valueOut) const;

    /// Same alternative and same value. Doubles compare as in operator<=>, so NaN
    /// equals a NaN of the same sign and -0 equals 0.
    bool operator==(const PrintfArgument& other) const;
    /// Orders by tag first, then by value. Doubles are ordered weakly and totally:
    /// negative NaNs first, then the numbers (-0 equivalent to 0), positive NaNs last.
    std::weak_ordering operator<=>(const PrintfArgument& other) const;

private:
    Value value_;
};

}  // namespace orrery::lang
