// The text of a script file, as the interpreter runs it.
#pragma once

#include <string>
#include <string_view>

namespace orrery::shell::eval {

/// Removes an editor's UTF-8 byte-order mark from the start of a program's text.
void dropByteOrderMark(std::string& source);

/// The bytes of the script file, less a byte-order mark. Raises
/// "ORRERY:shell:cannotRead" with the file and the system's reason (missing, a
/// folder, no permission) when it cannot be read.
std::string readScript(const std::string& file);

}  // namespace orrery::shell::eval
