// The hash of texts that lets an unordered container of std::string keys be
// searched with a string_view, without making a string.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

namespace orrery::text {

/// Hashes every spelling of a text alike (std::string, string_view, literal). With
/// std::equal_to<> it makes an unordered container's find take a string_view.
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept { return std::hash<std::string_view>{}(text); }
};

}  // namespace orrery::text
