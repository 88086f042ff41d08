// The lexer: turns source text into tokens, settling what depends on spacing
// (element separators inside brackets, transpose or quote, command syntax).
#pragma once

#include "shell/lang/token.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace orrery::shell::lang {

/// The tokens of a whole source, ending with EndOfInput. `sourceName` names the
/// source in error messages (a file name, or "<command>" for -e text). Raises
/// the "ORRERY:shell:*" syntax errors for malformed text.
std::vector<Token> tokenize(std::string_view source, std::u16string sourceName);

/// The language's keywords ("if", "function", ...).
std::vector<std::string_view> keywords();

}  // namespace orrery::shell::lang
