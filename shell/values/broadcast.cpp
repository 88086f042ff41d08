// Implicit expansion of operand sizes.
#include "shell/values/broadcast.hpp"

#include "shell/values/elements.hpp"
#include "shell/values/value_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <vector>

namespace orrery::shell::values {

Broadcast::Broadcast(const value::Dims& a, const value::Dims& b) : a_(a), b_(b), same_(a == b) {
    if (same_) {
        dims_ = a;
        return;
    }
    const std::size_t count = std::max(a.count(), b.count());
    std::vector<std::size_t> sizes(count);
    for (std::size_t d = 0; d < count; ++d) {
        if (a[d] == b[d] || b[d] == 1) {
            sizes[d] = a[d];
        } else if (a[d] == 1) {
            sizes[d] = b[d];
        } else {
            except::throwMessage(SizeMismatch(text::asciiToUtf16(a.text()), text::asciiToUtf16(b.text())));
        }
    }
    dims_ = value::Dims(sizes);
}

std::size_t Broadcast::map(std::size_t i, const value::Dims& operand) const {
    if (same_) return i;
    if (operand.numel() == 1) return 0;
    std::size_t index = 0;
    std::size_t stride = 1;
    for (std::size_t d = 0; d < dims_.count(); ++d) {
        const std::size_t size = dims_[d];
        const std::size_t subscript = size == 0 ? 0 : i % size;
        i = size == 0 ? 0 : i / size;
        if (operand[d] != 1) index += subscript * stride;
        stride *= operand[d];
    }
    return index;
}

}  // namespace orrery::shell::values
