// Array sizes: at least two dimensions, trailing singleton dimensions dropped.
#pragma once

#include <orrery/export.hpp>

#include <boost/container/small_vector.hpp>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

namespace orrery::value {

/// The size of an array. Always holds at least two entries; trailing ones beyond
/// the second are dropped so that equal sizes compare equal. Up to four
/// dimensions are held inside the object, so making and copying a size of an
/// ordinary array never allocates.
class ORRERY_API Dims {
public:
    Dims() : sizes_{0, 0} {}
    Dims(std::initializer_list<std::size_t> sizes) : sizes_(sizes) { normalise(); }
    explicit Dims(std::span<const std::size_t> sizes) : sizes_(sizes.begin(), sizes.end()) { normalise(); }
    explicit Dims(const std::vector<std::size_t>& sizes) : Dims(std::span<const std::size_t>(sizes)) {}

    std::size_t count() const noexcept { return sizes_.size(); }
    std::size_t operator[](std::size_t i) const noexcept { return i < sizes_.size() ? sizes_[i] : 1; }
    std::size_t rows() const noexcept { return sizes_[0]; }
    std::size_t cols() const noexcept { return sizes_[1]; }
    std::size_t numel() const noexcept {
        std::size_t n = 1;
        for (std::size_t s : sizes_) n *= s;
        return n;
    }
    std::span<const std::size_t> sizes() const noexcept { return {sizes_.data(), sizes_.size()}; }
    /// "2x3" style text.
    std::string text() const;

    friend bool operator==(const Dims& a, const Dims& b) noexcept {
        return std::equal(a.sizes_.begin(), a.sizes_.end(), b.sizes_.begin(), b.sizes_.end());
    }

private:
    void normalise() {
        while (sizes_.size() < 2) sizes_.push_back(sizes_.empty() ? 0 : 1);
        while (sizes_.size() > 2 && sizes_.back() == 1) sizes_.pop_back();
    }

    boost::container::small_vector<std::size_t, 4> sizes_;
};

}  // namespace orrery::value
