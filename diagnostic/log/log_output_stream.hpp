// An open warning log file and the position of its footer, where the next
// warning element goes.
#pragma once

#include "diagnostic/log/log_file_descriptor.hpp"

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

/// A warning log open for writing. Between warnings the file is a complete
/// document whose footer starts at a known offset.
///
/// A warning goes in by two positioned writes: first the element without its
/// first footer-length bytes, and the footer, after the old footer; then those
/// first bytes over the old footer. Until the second write the document still
/// ends at the old footer (the reader stops at the end of the document, so what
/// stands after it is never read); the second write is too short to be cut, so
/// a process killed at any moment leaves a file that loads and holds every
/// warning whose write returned.
class LogOutputStream {
public:
    /// Takes over an open file whose footer starts at footerStart. bytesAfterFooter
    /// tells that the file may hold bytes after its footer (left by a warning whose
    /// writing was cut short); they are cut off after the next warning.
    LogOutputStream(std::u16string path, LogFileDescriptor file, std::uint64_t footerStart, LogSync sync,
                    bool bytesAfterFooter = false);

    /// Writes the element (UTF-8) followed by the footer at the footer's start,
    /// and with LogSync::eachWarning forces both writes to the disk. Raises
    /// "ORRERY:warning:LogFile:FileWrite" with the path and the system's text for
    /// the error; the file is then put back as it was before the element, as far
    /// as the system lets it (the footer stays in place in any case but a failing
    /// device), and the next warning goes where this one would have gone.
    void writeElement(std::string_view element);

    /// The path the log was opened with.
    const std::u16string& path() const noexcept { return path_; }

private:
    void syncToDisk();
    void putBackFooter(bool footerOverwritten) noexcept;
    void cutBytesAfterFooter() noexcept;

    std::u16string path_;
    LogFileDescriptor file_;
    std::uint64_t footerStart_;
    LogSync sync_;
    bool bytesAfterFooter_;
    std::string pending_;  // the element's rest and the footer, assembled for one write
};

/// Writes all of bytes at offset, however many writes the system takes. Raises
/// "ORRERY:warning:LogFile:FileWrite" with the path and the system's text for the
/// error; the bytes written before the failure stay.
void writeLogBytesAt(const LogFileDescriptor& file, std::uint64_t offset, std::string_view bytes,
                     const std::u16string& path);

/// Opens the log file at path (a name made by normaliseLogFileName) for writing,
/// with the sync setting of logSyncFromEnvironment. A missing file is created
/// holding the header and the footer, a complete empty document
/// (createLogFile); an existing one is reopened before its footer (appendToLog).
std::shared_ptr<LogOutputStream> openLogForWriting(const std::u16string& path);

/// The first bytes of every log file: the XML declaration and the start tag of "log".
inline constexpr std::string_view kLogHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<log>\n";
/// The last bytes of every log file.
inline constexpr std::string_view kLogFooter = "</log>\n";

}  // namespace orrery::lang::diagnostic
