// Array sizes.
#include <orrery/value/dims.hpp>

namespace orrery::value {

Dims::Dims(std::initializer_list<std::size_t> sizes) : sizes_(sizes) { normalise(); }
Dims::Dims(std::vector<std::size_t> sizes) : sizes_(std::move(sizes)) { normalise(); }

void Dims::normalise() {
    while (sizes_.size() < 2) sizes_.push_back(sizes_.empty() ? 0 : 1);
    while (sizes_.size() > 2 && sizes_.back() == 1) sizes_.pop_back();
}

std::size_t Dims::numel() const noexcept {
    std::size_t n = 1;
    for (std::size_t s : sizes_) n *= s;
    return n;
}

std::string Dims::text() const {
    std::string out;
    for (std::size_t i = 0; i < sizes_.size(); ++i) {
        if (i > 0) out += 'x';
        out += std::to_string(sizes_[i]);
    }
    return out;
}

}  // namespace orrery::value
