// An open warning log file: the output stream that stands at the file's footer,
// where the next warning element goes.
#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace orrery::lang::diagnostic {

/// A warning log open for writing. Between warnings the file is a complete
/// document and the output position stands at the first byte of its footer.
class LogOutputStream {
public:
    /// Takes over a stream that stands at footerStart; sets its exception mask to
    /// failure and bad state, so that every failed operation raises.
    LogOutputStream(std::u16string path, std::unique_ptr<std::ostream> stream, std::uint64_t footerStart);

    /// Writes the element (UTF-8) over the footer, writes the footer after it,
    /// flushes, and stands again at the footer. Raises
    /// "ORRERY:warning:LogFile:FileWrite" with the path and the failure's text; a
    /// part of the element may then stand in the file.
    void writeElement(std::string_view element);

    /// Writes the footer at the output position, flushes, and stands again at it.
    /// Raises "ORRERY:warning:LogFile:FileWrite".
    void writeFooter();

    /// The path the log was opened with.
    const std::u16string& path() const noexcept { return path_; }

private:
    std::u16string path_;
    std::unique_ptr<std::ostream> stream_;
    // Counted, not asked of the stream: the file is written unformatted, byte for
    // byte, and asking the stream for its position costs a system call.
    std::uint64_t footerStart_;
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
