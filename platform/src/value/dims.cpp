// Array sizes.
#include <orrery/value/dims.hpp>

namespace orrery::value {

std::string Dims::text() const {
    std::string out;
    for (std::size_t i = 0; i < count_; ++i) {
        if (i > 0) out += 'x';
        out += std::to_string(data()[i]);
    }
    return out;
}

}  // namespace orrery::value
