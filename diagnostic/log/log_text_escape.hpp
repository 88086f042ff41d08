// The escaping of texts written into a warning log.
#pragma once

#include <string>
#include <string_view>

namespace orrery::lang::diagnostic {

/// The text in UTF-8 with every code unit that XML or the log's own escape would
/// misread replaced: '"', '&', ''', '<', '>' by their entity references, "#"
/// doubled, and each unit outside tab, U+0020-U+007E, U+00A0-U+D7FF,
/// U+E000-U+FDCF and U+FDF0-U+FFFD (each surrogate on its own) by "#", its
/// lower-case hexadecimal value without leading zeros, and "#". The result holds
/// no line break and no surrogate.
std::string escapeLogText(std::u16string_view text);

/// Appends escapeLogText(text) to out, for a writer assembling a larger text.
void appendEscapedLogText(std::string& out, std::u16string_view text);

}  // namespace orrery::lang::diagnostic
