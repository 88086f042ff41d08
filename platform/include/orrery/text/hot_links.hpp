// The console's hyperlink mark-up, and its removal from message text.
#pragma once

#include <orrery/export.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace orrery::text {

/// Removes the console's hyperlink mark-up from UTF-8 text: each well-formed link
/// `<a href="target">label</a>` (the target may also be quoted with ') is replaced
/// by its label. A link is well formed when `<a href=` is followed by a quoted
/// target, `>`, a label holding no further `<a href=`, and `</a>`; anything else,
/// including an unclosed or nested link, stays as it is.
ORRERY_API std::string ioStripHotLinks(std::string_view utf8);

/// The same, adding to `examined` the bytes its searches passed over: the work
/// done, which stays within a small multiple of the text's size for any mark-up.
ORRERY_API std::string ioStripHotLinks(std::string_view utf8, std::size_t& examined);

}  // namespace orrery::text
