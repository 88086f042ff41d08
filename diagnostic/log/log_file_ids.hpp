// Catalogue message keys of the "ORRERY:warning:LogFile" family: naming, opening,
// writing and reading warning log files.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::diagnostic::ids {

// ---- naming: raised before any file is touched -----------------------------------------
ORRERY_MESSAGE_KEY(LogFileEmptyName, "ORRERY:warning:LogFile:EmptyName");
/// Argument: the resolved path.
ORRERY_MESSAGE_KEY(LogFileDirSpecified, "ORRERY:warning:LogFile:DirSpecified");
/// Argument: the resolved path.
ORRERY_MESSAGE_KEY(LogFileBadExtension, "ORRERY:warning:LogFile:BadExtension");

// ---- the set of open logs: argument is a normalised name ---------------------------------
ORRERY_MESSAGE_KEY(LogFileNotOpen, "ORRERY:warning:LogFile:FileNotOpen");
ORRERY_MESSAGE_KEY(LogFileOpen, "ORRERY:warning:LogFile:FileOpen");
/// Argument: the name of the log already open, in its own letter case.
ORRERY_MESSAGE_KEY(LogFileOpenCase, "ORRERY:warning:LogFile:FileOpenCase");

// ---- stream failures: arguments are the path and the stream failure's text --------------
ORRERY_MESSAGE_KEY(LogFileOpenFileAppend, "ORRERY:warning:LogFile:OpenFileAppend");
ORRERY_MESSAGE_KEY(LogFileFileSeek, "ORRERY:warning:LogFile:FileSeek");
ORRERY_MESSAGE_KEY(LogFileOpenFileWrite, "ORRERY:warning:LogFile:OpenFileWrite");
ORRERY_MESSAGE_KEY(LogFileFileWrite, "ORRERY:warning:LogFile:FileWrite");
ORRERY_MESSAGE_KEY(LogFileOpenFileRead, "ORRERY:warning:LogFile:OpenFileRead");
ORRERY_MESSAGE_KEY(LogFileFileRead, "ORRERY:warning:LogFile:FileRead");

}  // namespace orrery::diagnostic::ids
