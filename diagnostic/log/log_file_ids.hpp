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

// ---- what the name leads to: argument is the path; raised before anything is read or written
/// Also raised when a name ending in ".xml" turns out to be a folder.
using LogFileIsFolder = LogFileDirSpecified;
ORRERY_MESSAGE_KEY(LogFileIsPipe, "ORRERY:warning:LogFile:IsPipe");
ORRERY_MESSAGE_KEY(LogFileIsSocket, "ORRERY:warning:LogFile:IsSocket");
ORRERY_MESSAGE_KEY(LogFileIsDevice, "ORRERY:warning:LogFile:IsDevice");
/// A new log would be created through a symbolic link whose target is missing.
ORRERY_MESSAGE_KEY(LogFileDanglingLink, "ORRERY:warning:LogFile:DanglingLink");
/// Arguments: the path and the encoding the file declares or starts with.
ORRERY_MESSAGE_KEY(LogFileNotUtf8, "ORRERY:warning:LogFile:NotUTF8");
/// The file no longer ends with a footer that a warning can be written before.
ORRERY_MESSAGE_KEY(LogFileFooterMissing, "ORRERY:warning:LogFile:FooterMissing");

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
ORRERY_MESSAGE_KEY(LogFileFileLock, "ORRERY:warning:LogFile:FileLock");
ORRERY_MESSAGE_KEY(LogFileOpenFileRead, "ORRERY:warning:LogFile:OpenFileRead");
ORRERY_MESSAGE_KEY(LogFileFileRead, "ORRERY:warning:LogFile:FileRead");

}  // namespace orrery::diagnostic::ids
