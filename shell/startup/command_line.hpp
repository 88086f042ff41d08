// The orrery command's arguments.
#pragma once

#include "shell/startup/log_summary.hpp"
#include "shell/startup/warning_settings.hpp"

#include <string>
#include <vector>

namespace orrery::shell::startup {

/// What the command was asked to do.
struct Options {
    enum class Mode { Prompt, Script, Text, Help, Version, LogSummary };
    Mode mode = Mode::Prompt;
    std::string script;                           ///< the file of Mode::Script
    std::string text;                             ///< the code of Mode::Text
    std::vector<std::string> scriptArgs;          ///< what follows the script or the text
    std::vector<WarningSetting> warningSettings;  ///< the -W settings, in order
    std::string logFile;                          ///< the log of Mode::LogSummary
    SummaryFormat summaryFormat = SummaryFormat::Text;
};

/// Reads the arguments (without the program name): first any of "-W SETTING"
/// (repeatable), "--log-summary FILE" and "--format text|csv|json", then
/// "--help" or "-h", "--version", "-e TEXT", "FILE [args...]" or nothing
/// (nothing at all after --log-summary FILE). Raises "ORRERY:shell:unknownOption",
/// "ORRERY:shell:missingText", "ORRERY:shell:missingValue",
/// "ORRERY:shell:extraArgument", "ORRERY:shell:badSummaryFormat",
/// "ORRERY:shell:formatWithoutSummary" and the errors of parseWarningSetting.
Options parseCommandLine(const std::vector<std::string>& args);

/// The text --help prints.
std::string usageText();

/// The text --version prints.
std::string versionText();

}  // namespace orrery::shell::startup
