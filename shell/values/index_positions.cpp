// Index arguments as element positions.
#include "shell/values/index_positions.hpp"

#include "shell/values/elements.hpp"
#include "shell/values/value_messages.hpp"

#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>

namespace orrery::shell::values {
namespace {

using value::ClassId;
using value::ValueArray;

[[noreturn]] void badIndex(const ValueArray& index, std::size_t i) {
    char buffer[64];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, index.realAt(i));
    except::throwMessage(BadIndex(text::asciiToUtf16(std::string_view(buffer, written.ptr))));
}

}  // namespace

std::vector<std::size_t> indexPositions(const IndexArg& arg, std::size_t extent) {
    std::vector<std::size_t> positions;
    if (arg.colon) {
        positions.resize(extent);
        std::iota(positions.begin(), positions.end(), std::size_t{0});
        return positions;
    }
    const ValueArray& index = arg.value;
    if (index.is(ClassId::Logical)) {
        for (std::size_t i = 0; i < index.numel(); ++i)
            if (index.logicalAt(i)) positions.push_back(i);
        return positions;
    }
    if (!isNumberLike(index)) except::throwMessage(BadIndexClass());
    positions.reserve(index.numel());
    for (std::size_t i = 0; i < index.numel(); ++i) {
        const auto position = wholeCount(index.realAt(i));
        if (!position || *position < 1) badIndex(index, i);
        positions.push_back(*position - 1);
    }
    return positions;
}

void requireWithin(const std::vector<std::size_t>& positions, std::size_t extent, std::size_t k, bool linear) {
    for (std::size_t position : positions) {
        if (position < extent) continue;
        if (linear) except::throwMessage(except::host::IndexOutOfRange(position + 1, extent));
        except::throwMessage(IndexBeyondDimension(k + 1, position + 1, extent));
    }
}

std::vector<std::size_t> cartesianPositions(const std::vector<std::vector<std::size_t>>& lists,
                                            const std::vector<std::size_t>& extents) {
    double total = 1;
    for (const auto& list : lists) total *= static_cast<double>(list.size());
    checkElementCount(total);
    std::vector<std::size_t> positions{0};
    std::size_t stride = 1;
    for (std::size_t k = 0; k < lists.size(); ++k) {
        std::vector<std::size_t> next;
        next.reserve(positions.size() * lists[k].size());
        // earlier dimensions vary fastest, as in column-major order
        for (std::size_t p : lists[k])
            for (std::size_t base : positions) next.push_back(base + p * stride);
        positions = std::move(next);
        stride *= extents[k];
    }
    return positions;
}

value::Dims listSizes(const std::vector<std::vector<std::size_t>>& lists) {
    std::vector<std::size_t> sizes;
    sizes.reserve(lists.size());
    for (const auto& list : lists) sizes.push_back(list.size());
    return value::Dims(sizes);
}

std::size_t neededExtent(const std::vector<std::size_t>& positions) {
    return positions.empty() ? 0 : *std::max_element(positions.begin(), positions.end()) + 1;
}

}  // namespace orrery::shell::values
