// An open warning log file and the position of its footer, where the next
// warning element goes.
#pragma once

#include "diagnostic/log/log_file_descriptor.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orrery::lang::diagnostic {

/// A warning log open for writing. Between warnings the file is a complete
/// document whose footer starts at a known offset.
class LogOutputStream {
public:
    /// Takes over an open file whose footer starts at footerStart.
    LogOutputStream(std::u16string path, LogFileDescriptor file, std::uint64_t footerStart);

    /// Writes the element (UTF-8) followed by the footer, in one positioned write
    /// at the footer's start, so the file grows by the element at once and keeps
    /// its footer. Raises "ORRERY:warning:LogFile:FileWrite" with the path and the
    /// system's text for the error; a part of the element may then stand in the
    /// file, before a part of the footer.
    void writeElement(std::string_view element);

    /// The path the log was opened with.
    const std::u16string& path() const noexcept { return path_; }

private:
    std::u16string path_;
    LogFileDescriptor file_;
    std::uint64_t footerStart_;
    std::string pending_;  // element and footer, assembled for the one write
};

/// Opens the log file at path (a name made by normaliseLogFileName) for writing.
/// A missing file is created holding the header and the footer, a complete empty
/// document ("ORRERY:warning:LogFile:OpenFileWrite", "FileWrite"). An existing
/// file is opened for update without truncation ("OpenFileAppend") and positioned
/// at its footer as findLogEnd finds it ("FileSeek"); a file the reader rejects
/// raises the reader's error and is left untouched.
std::shared_ptr<LogOutputStream> openLogForWriting(const std::u16string& path);

/// The first bytes of every log file: the XML declaration and the start tag of "log".
inline constexpr std::string_view kLogHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<log>\n";
/// The last bytes of every log file.
inline constexpr std::string_view kLogFooter = "</log>\n";

}  // namespace orrery::lang::diagnostic
