// The characters of identifiers: names of the language and the components of
// message identifiers.
#pragma once

#include <orrery/export.hpp>

#include <string_view>

namespace orrery::text {

/// Which identifiers a character test is for. Both start with an ASCII letter.
enum class IdentifierKind {
    Name,              ///< names of the language, fields and classes: then letters, digits, underscores
    MessageComponent,  ///< a component of a message identifier: hyphens are allowed too
};

/// True for an ASCII letter, the first character of every identifier.
constexpr bool isIdentifierStart(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

/// True for a character that may follow the first one in an identifier of the kind.
constexpr bool isIdentifierPart(char c, IdentifierKind kind) {
    if (isIdentifierStart(c) || (c >= '0' && c <= '9') || c == '_') return true;
    return kind == IdentifierKind::MessageComponent && c == '-';
}

/// True when the whole text is one identifier of the kind; the empty text is not.
ORRERY_API bool isIdentifier(std::string_view text, IdentifierKind kind);

}  // namespace orrery::text
