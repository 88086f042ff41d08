// The orrery command's arguments.
#pragma once

#include <string>
#include <vector>

namespace orrery::shell::startup {

/// What the command was asked to do.
struct Options {
    enum class Mode { Prompt, Script, Text, Help, Version };
    Mode mode = Mode::Prompt;
    std::string script;                   ///< the file of Mode::Script
    std::string text;                     ///< the code of Mode::Text
    std::vector<std::string> scriptArgs;  ///< what follows the script or the text
};

/// Reads the arguments (without the program name): "--help" or "-h",
/// "--version", "-e TEXT", "FILE [args...]" or nothing. Raises
/// "ORRERY:shell:unknownOption" and "ORRERY:shell:missingText".
Options parseCommandLine(const std::vector<std::string>& args);

/// The text --help prints.
std::string usageText();

/// The text --version prints.
std::string versionText();

}  // namespace orrery::shell::startup
