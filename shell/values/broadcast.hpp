// Implicit expansion: two sizes whose dimensions agree or are 1 combine into
// one, and each element of the result maps back to one element of each operand.
#pragma once

#include <orrery/value/dims.hpp>

#include <cstddef>

namespace orrery::shell::values {

/// The combined size of two operands and the way back to their elements.
/// Raises "ORRERY:shell:sizeMismatch" when the sizes do not combine.
class Broadcast {
public:
    Broadcast(const value::Dims& a, const value::Dims& b);

    const value::Dims& dims() const noexcept { return dims_; }
    /// The element of the left or right operand behind result element i.
    std::size_t left(std::size_t i) const { return map(i, a_); }
    std::size_t right(std::size_t i) const { return map(i, b_); }

private:
    std::size_t map(std::size_t i, const value::Dims& operand) const;

    value::Dims a_;
    value::Dims b_;
    value::Dims dims_;
    bool same_ = false;
};

}  // namespace orrery::shell::values
