// Catalogue message keys of the "ORRERY:warning:LogFile" family: naming, opening,
// writing and reading warning log files.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::diagnostic::ids {

// ---- naming: raised before any file is touched -----------------------------------------
ORRERY_MESSAGE_KEY(LogFileEmptyName, "ORRERY:warning:LogFile:EmptyName", 0);
/// Argument: the resolved path.
ORRERY_MESSAGE_KEY(LogFileDirSpecified, "ORRERY:warning:LogFile:DirSpecified", 1);
/// Argument: the resolved path.
ORRERY_MESSAGE_KEY(LogFileBadExtension, "ORRERY:warning:LogFile:BadExtension", 1);

// ---- what the name leads to: argument is the path; raised before anything is read or written
/// Also raised when a name ending in ".xml" turns out to be a folder.
using LogFileIsFolder = LogFileDirSpecified;
ORRERY_MESSAGE_KEY(LogFileIsPipe, "ORRERY:warning:LogFile:IsPipe", 1);
ORRERY_MESSAGE_KEY(LogFileIsSocket, "ORRERY:warning:LogFile:IsSocket", 1);
ORRERY_MESSAGE_KEY(LogFileIsDevice, "ORRERY:warning:LogFile:IsDevice", 1);
/// A new log would be created through a symbolic link whose target is missing.
ORRERY_MESSAGE_KEY(LogFileDanglingLink, "ORRERY:warning:LogFile:DanglingLink", 1);
/// Arguments: the path and the encoding the file declares or starts with.
ORRERY_MESSAGE_KEY(LogFileNotUtf8, "ORRERY:warning:LogFile:NotUTF8", 2);
/// The file no longer ends with a footer that a warning can be written before.
ORRERY_MESSAGE_KEY(LogFileFooterMissing, "ORRERY:warning:LogFile:FooterMissing", 1);

// ---- the set of open logs: argument is a normalised name ---------------------------------
ORRERY_MESSAGE_KEY(LogFileNotOpen, "ORRERY:warning:LogFile:FileNotOpen", 1);
ORRERY_MESSAGE_KEY(LogFileOpen, "ORRERY:warning:LogFile:FileOpen", 1);
/// Argument: the name of the log already open, in its own letter case.
ORRERY_MESSAGE_KEY(LogFileOpenCase, "ORRERY:warning:LogFile:FileOpenCase", 1);

// ---- stream failures: arguments are the path and the stream failure's text --------------
ORRERY_MESSAGE_KEY(LogFileOpenFileAppend, "ORRERY:warning:LogFile:OpenFileAppend", 2);
ORRERY_MESSAGE_KEY(LogFileFileSeek, "ORRERY:warning:LogFile:FileSeek", 2);
ORRERY_MESSAGE_KEY(LogFileOpenFileWrite, "ORRERY:warning:LogFile:OpenFileWrite", 2);
ORRERY_MESSAGE_KEY(LogFileFileWrite, "ORRERY:warning:LogFile:FileWrite", 2);
ORRERY_MESSAGE_KEY(LogFileFileLock, "ORRERY:warning:LogFile:FileLock", 2);
ORRERY_MESSAGE_KEY(LogFileOpenFileRead, "ORRERY:warning:LogFile:OpenFileRead", 2);
ORRERY_MESSAGE_KEY(LogFileFileRead, "ORRERY:warning:LogFile:FileRead", 2);

}  // namespace orrery::diagnostic::ids
