// The exclusive lock a writer holds on a warning log file while it appends.
#pragma once

#include "diagnostic/log/log_file_descriptor.hpp"

#include <string>

namespace orrery::lang::diagnostic {

/// Holds an exclusive lock on the whole of an open file while it lives, waiting
/// for any other holder first. The lock belongs to the open file description, so
/// two descriptions of one file (two names, two processes) exclude each other, and
/// the system releases it when its holder dies. Raises
/// "ORRERY:warning:LogFile:FileLock" with the path and the system's text when the
/// file system cannot lock.
class LogFileLock {
public:
    LogFileLock(const LogFileDescriptor& file, const std::u16string& path);
    ~LogFileLock();
    LogFileLock(const LogFileLock&) = delete;
    LogFileLock& operator=(const LogFileLock&) = delete;

private:
    int descriptor_;
};

}  // namespace orrery::lang::diagnostic
