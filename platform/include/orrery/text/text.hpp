// Text encodings: conversions between UTF-8, UTF-16 and ASCII, ASCII tests, UTF-8
// decoding, and case-insensitive comparison.
#pragma once

#include <orrery/export.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orrery::text {

/// Converts UTF-8 to UTF-16; raises "ORRERY:text:invalidUtf8" for malformed input.
ORRERY_API std::u16string utf8ToUtf16(std::string_view utf8);

/// Converts UTF-16 to UTF-8; raises "ORRERY:text:invalidUtf16" for an unpaired surrogate.
ORRERY_API std::string utf16ToUtf8(std::u16string_view utf16);

/// Converts UTF-16 to ASCII; raises "ORRERY:text:invalidCharacter" ("Invalid character
/// error.") at the first code unit above 127.
ORRERY_API std::string utf16ToAscii(std::u16string_view utf16);

/// Widens ASCII (or Latin-1 bytes) to UTF-16 unit by unit.
ORRERY_API std::u16string asciiToUtf16(std::string_view ascii);

/// Converts UTF-16 to UTF-8 with U+FFFD in place of each unpaired surrogate, for
/// text that must be shown whatever it holds.
ORRERY_API std::string utf16ToUtf8Lossy(std::u16string_view utf16);

/// Converts UTF-8 to UTF-16 with U+FFFD in place of each malformed sequence.
ORRERY_API std::u16string utf8ToUtf16Lossy(std::string_view utf8);

/// True when no byte is above 127.
ORRERY_API bool isAscii(std::string_view text);

/// True when no code unit is above 127.
ORRERY_API bool isAscii(std::u16string_view text);

/// A character read from UTF-8: its code point and the bytes it takes.
struct Utf8Character {
    char32_t codePoint;
    std::size_t length;
};

/// Decodes the character at the start of utf8; nothing when the text is empty or
/// does not start with a well-formed UTF-8 sequence (a stray continuation byte, a
/// truncated or overlong sequence, a surrogate or a code point above U+10FFFF).
ORRERY_API std::optional<Utf8Character> decodeUtf8(std::string_view utf8);

/// Compares with full Unicode case folding: negative, zero or positive.
ORRERY_API int compareIgnoreCase(std::u16string_view a, std::u16string_view b);

/// True when the two texts are equal under full Unicode case folding.
ORRERY_API bool equalsIgnoreCase(std::u16string_view a, std::u16string_view b);

/// The text in upper or lower case by the full Unicode case mappings of the root
/// locale (a text may change its length: "ß" becomes "SS").
ORRERY_API std::u16string toUpperCase(std::u16string_view text);
ORRERY_API std::u16string toLowerCase(std::u16string_view text);

/// True when the two narrow texts are equal, ASCII letters compared without case.
ORRERY_API bool equalsIgnoreCaseAscii(std::string_view a, std::string_view b);

/// Orders UTF-16 texts case-insensitively, for ordered containers keyed by file name.
struct CaseInsensitiveLess {
    bool operator()(std::u16string_view a, std::u16string_view b) const { return compareIgnoreCase(a, b) < 0; }
};

}  // namespace orrery::text
