// Opening an existing warning log file by name: regular files only, and never
// waiting on a pipe or device that the name leads to.
#pragma once

#include "diagnostic/log/log_file_descriptor.hpp"

#include <sys/stat.h>

#include <string>

namespace orrery::lang::diagnostic {

/// What a log file is opened for: reading it back, or writing warnings into it.
enum class LogAccess { read, update };

/// Raises the path's "ORRERY:warning:LogFile" identifier unless status is that of
/// a regular file: "DirSpecified" for a folder, "IsPipe", "IsSocket" or "IsDevice".
void refuseUnlessRegularFile(const struct stat& status, const std::u16string& path);

/// Opens the file at path (following symbolic links) without blocking, after
/// refusing anything but a regular file (refuseUnlessRegularFile, checked before
/// the open and again on what was opened). Answers a closed descriptor when
/// nothing exists at path, a dangling link included; any other failure raises
/// "OpenFileRead" or "OpenFileAppend" with the path and the system's text.
LogFileDescriptor openExistingLogFile(const std::u16string& path, LogAccess access);

}  // namespace orrery::lang::diagnostic
