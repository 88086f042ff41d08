// The characters of identifiers.
#include <orrery/text/identifiers.hpp>

#include <algorithm>

namespace orrery::text {

bool isIdentifierStart(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool isIdentifierPart(char c, IdentifierKind kind) {
    if (isIdentifierStart(c) || (c >= '0' && c <= '9') || c == '_') return true;
    return kind == IdentifierKind::MessageComponent && c == '-';
}

bool isIdentifier(std::string_view text, IdentifierKind kind) {
    return !text.empty() && isIdentifierStart(text.front()) &&
           std::all_of(text.begin() + 1, text.end(), [kind](char c) { return isIdentifierPart(c, kind); });
}

}  // namespace orrery::text
