// Array sizes: at least two dimensions, trailing singleton dimensions dropped.
#pragma once

#include <orrery/export.hpp>

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

namespace orrery::value {

/// The size of an array. Always holds at least two entries; trailing ones beyond
/// the second are dropped so that equal sizes compare equal.
class ORRERY_API Dims {
public:
    Dims() : sizes_{0, 0} {}
    Dims(std::initializer_list<std::size_t> sizes);
    explicit Dims(std::vector<std::size_t> sizes);

    std::size_t count() const noexcept { return sizes_.size(); }
    std::size_t operator[](std::size_t i) const noexcept { return i < sizes_.size() ? sizes_[i] : 1; }
    std::size_t rows() const noexcept { return sizes_[0]; }
    std::size_t cols() const noexcept { return sizes_[1]; }
    std::size_t numel() const noexcept;
    const std::vector<std::size_t>& sizes() const noexcept { return sizes_; }
    /// "2x3" style text.
    std::string text() const;

    friend bool operator==(const Dims&, const Dims&) = default;

private:
    void normalise();
    std::vector<std::size_t> sizes_;
};

}  // namespace orrery::value
