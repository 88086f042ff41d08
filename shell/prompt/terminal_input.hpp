// Reading keys for the line editor.
#pragma once

#include <cstdio>

namespace orrery::shell::prompt {

/// The line editor's character source: reads one UTF-8 character from the
/// stream's descriptor and returns its code point (U+FFFD for a malformed
/// sequence). Returns -1 at end of input, and when Ctrl-C interrupts the wait
/// (the interruption flag is then set), which ends the line being typed.
int readTerminalCharacter(std::FILE* stream);

}  // namespace orrery::shell::prompt
