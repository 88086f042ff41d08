// An open warning log file and the position of its footer, where the next
// warning element goes.
#pragma once

#include "diagnostic/log/log_file_descriptor.hpp"
#include "diagnostic/log/log_file_format.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orrery::lang::diagnostic {

/// Whether a log forces each warning to the disk before the warning's issue returns.
enum class LogSync : bool { none, eachWarning };

/// The setting for logs opened now: eachWarning when the environment variable
/// ORRERY_LOG_SYNC is "1", none otherwise.
LogSync logSyncFromEnvironment();

/// A warning log open for writing, by this writer and perhaps by others (other
/// processes, other names of the same file). Between warnings the file is a
/// complete document.
///
/// Each warning is written under the file's exclusive lock (LogFileLock). Under
/// the lock the writer first finds where the footer is now: where it left it when
/// the file still has the size it left, else by looking from there (or, when the
/// file has become shorter, from its start) for the first footer, after which
/// only the remains of an append cut short may stand; those are cut off. A file
/// emptied meanwhile is started afresh with the header and the footer.
///
/// The warning then goes in by two positioned writes: first the element without
/// its first footer-length bytes, and the footer, after the old footer; then those
/// first bytes over the old footer. Until the second write the document still
/// ends at the old footer (what stands after it is the remains a reader ignores);
/// the second write is too short to be cut, so a process killed at any moment
/// leaves a file that loads and holds every warning whose write returned, and the
/// system releases its lock.
class LogOutputStream {
public:
    /// Takes over an open file (readable and writable) whose footer starts at
    /// footerStart and whose size was fileSize when it was found there.
    LogOutputStream(std::u16string path, LogFileDescriptor file, std::uint64_t footerStart, std::uint64_t fileSize,
                    LogSync sync);

    /// Writes the element (UTF-8) followed by the footer where the footer is now,
    /// and with LogSync::eachWarning forces both writes to the disk. Raises
    /// "ORRERY:warning:LogFile:FooterMissing" with the path, writing nothing, when
    /// the file no longer ends with a footer; "FileLock" when it cannot be locked;
    /// "FileWrite" with the path and the system's text for a failed write. After a
    /// failed write the file is put back as it was before the element, as far as
    /// the system lets it (the footer stays in place in any case but a failing
    /// device), and the next warning goes where this one would have gone.
    void writeElement(std::string_view element);

    /// The path the log was opened with.
    const std::u16string& path() const noexcept { return path_; }

private:
    void locateFooter();
    void startAfresh();
    void syncToDisk();
    void putBackFooter(bool footerOverwritten) noexcept;
    void cutAfterFooter();

    std::u16string path_;
    LogFileDescriptor file_;
    std::uint64_t footerStart_;
    std::uint64_t fileSize_;  // the file's size as this writer last found or left it
    LogSync sync_;
    std::string scratch_;  // bytes read while finding the footer
};

/// Opens the log file at path (a name made by normaliseLogFileName) for writing,
/// with the sync setting of logSyncFromEnvironment. Only a regular file is
/// opened (openExistingLogFile); a missing one is created holding the header and
/// the footer, a complete empty document (createLogFile), and an existing one is
/// reopened before its footer (appendToLog).
std::shared_ptr<LogOutputStream> openLogForWriting(const std::u16string& path);

}  // namespace orrery::lang::diagnostic
