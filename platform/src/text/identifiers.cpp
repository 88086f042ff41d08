// The characters of identifiers.
#include <orrery/text/identifiers.hpp>

#include <algorithm>

namespace orrery::text {

bool isIdentifier(std::string_view text, IdentifierKind kind) {
    return !text.empty() && isIdentifierStart(text.front()) &&
           std::all_of(text.begin() + 1, text.end(), [kind](char c) { return isIdentifierPart(c, kind); });
}

}  // namespace orrery::text
