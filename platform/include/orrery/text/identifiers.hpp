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
ORRERY_API bool isIdentifierStart(char c);

/// True for a character that may follow the first one in an identifier of the kind.
ORRERY_API bool isIdentifierPart(char c, IdentifierKind kind);

/// True when the whole text is one identifier of the kind; the empty text is not.
ORRERY_API bool isIdentifier(std::string_view text, IdentifierKind kind);

}  // namespace orrery::text
