// The parser: recursive descent over the lexer's tokens.
#pragma once

#include "shell/lang/ast.hpp"

#include <string>
#include <string_view>

namespace orrery::shell::lang {

/// How deeply brackets, blocks and operators may nest; deeper text is refused
/// with "ORRERY:shell:tooDeep" rather than exhausting the machine's stack.
inline constexpr int kMaxNesting = 100;
/// The greatest height of one expression's tree (long operator chains).
inline constexpr int kMaxExpressionDepth = 400;

/// Parses a whole source. `sourceName` names it in error messages. Raises the
/// "ORRERY:shell:*" syntax errors, which give the source, line and column and
/// say what was expected.
Program parse(std::string_view source, std::u16string sourceName);

}  // namespace orrery::shell::lang

namespace orrery::shell::lang {

/// True when the text is a correct beginning that more lines would complete:
/// an open block (a function definition included), bracket or block comment
/// at its end. The prompt then reads on instead of reporting an error.
bool needsMoreInput(std::string_view source);

}  // namespace orrery::shell::lang
