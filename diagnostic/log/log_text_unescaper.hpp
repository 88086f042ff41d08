// Undoing the log writer's "#" escapes in texts read from a warning log.
#pragma once

#include <string>
#include <string_view>

namespace orrery::lang::diagnostic {

/// The text with its escapes undone: "##" gives one "#", and "#" hexadecimal
/// digits "#" gives the code unit of the low 16 bits of that number; every other
/// character is kept. Raises "ORRERY:warning:XMLParser:InvalidHexEntry" (the whole
/// escape) for a non-hexadecimal character inside an escape and
/// "ORRERY:warning:XMLParser:UnmatchedEscapedCharacter" ("#" and the rest of the
/// text from it) for a "#" that no later "#" closes.
std::u16string unescapeLogText(std::u16string_view text);

/// The same, reusing text's storage when it holds no "#".
std::u16string unescapeLogText(std::u16string&& text);

}  // namespace orrery::lang::diagnostic
