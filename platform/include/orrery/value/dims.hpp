// Array sizes: at least two dimensions, trailing singleton dimensions dropped.
#pragma once

#include <orrery/export.hpp>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace orrery::value {

/// The size of an array. Always holds at least two entries; trailing ones beyond
/// the second are dropped so that equal sizes compare equal. Up to four
/// dimensions are held inside the object, so making and copying a size of an
/// ordinary array never allocates; moving never throws.
class ORRERY_API Dims {
public:
    Dims() noexcept : count_(2) {}
    Dims(std::initializer_list<std::size_t> sizes) { assign(sizes.begin(), sizes.size()); }
    explicit Dims(std::span<const std::size_t> sizes) { assign(sizes.data(), sizes.size()); }
    explicit Dims(const std::vector<std::size_t>& sizes) { assign(sizes.data(), sizes.size()); }
    Dims(const Dims& other) { assign(other.data(), other.count_); }
    /// A moved-from size is 0-by-0.
    Dims(Dims&& other) noexcept { take(other); }
    Dims& operator=(const Dims& other) {
        if (this != &other) assign(other.data(), other.count_);
        return *this;
    }
    Dims& operator=(Dims&& other) noexcept {
        if (this != &other) take(other);
        return *this;
    }
    ~Dims() = default;

    std::size_t count() const noexcept { return count_; }
    std::size_t operator[](std::size_t i) const noexcept { return i < count_ ? data()[i] : 1; }
    std::size_t rows() const noexcept { return data()[0]; }
    std::size_t cols() const noexcept { return data()[1]; }
    std::size_t numel() const noexcept {
        std::size_t n = 1;
        for (std::size_t s : sizes()) n *= s;
        return n;
    }
    std::span<const std::size_t> sizes() const noexcept { return {data(), count_}; }
    /// "2x3" style text.
    std::string text() const;

    friend bool operator==(const Dims& a, const Dims& b) noexcept {
        const auto x = a.sizes();
        const auto y = b.sizes();
        return std::equal(x.begin(), x.end(), y.begin(), y.end());
    }

private:
    static constexpr std::size_t kInline = 4;

    const std::size_t* data() const noexcept { return more_ ? more_.get() : inline_; }
    /// Takes the sizes, at least two, trailing ones beyond the second dropped.
    void assign(const std::size_t* sizes, std::size_t n) {
        std::size_t kept = n;
        while (kept > 2 && sizes[kept - 1] == 1) --kept;
        if (kept > kInline) {
            more_ = std::make_unique<std::size_t[]>(kept);
            std::copy(sizes, sizes + kept, more_.get());
        } else {
            more_.reset();
            // a fixed-length copy, so that copying a value's size calls nothing
            for (std::size_t i = 0; i < kInline; ++i) inline_[i] = i < kept ? sizes[i] : 0;
        }
        if (kept == 0) inline_[0] = 0;
        if (kept < 2) inline_[1] = kept == 0 ? 0 : 1;
        count_ = std::max<std::size_t>(kept, 2);
    }

    void take(Dims& other) noexcept {
        count_ = other.count_;
        std::copy(other.inline_, other.inline_ + kInline, inline_);
        more_ = std::move(other.more_);
        other.count_ = 2;
        other.inline_[0] = 0;
        other.inline_[1] = 0;
    }

    std::size_t count_ = 2;
    std::size_t inline_[kInline] = {0, 0, 0, 0};  // the sizes while there are at most four
    std::unique_ptr<std::size_t[]> more_;         // the sizes when there are more
};

}  // namespace orrery::value
