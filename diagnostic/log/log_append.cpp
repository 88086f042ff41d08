// Reopening an existing warning log to write more warnings before its footer.
#include "diagnostic/log/log_append.hpp"

#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_file_io.hpp"
#include "diagnostic/log/log_file_lock.hpp"
#include "diagnostic/log/log_stream_failure.hpp"
#include "diagnostic/log/warning_log_reader.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <sys/stat.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;
namespace {

// The encoding the file's first bytes show when it is not UTF-8: a byte-order
// mark, or the layout of "<" in UTF-16 and UTF-32 without one; empty otherwise.
std::string_view encodingOfFirstBytes(std::string_view bytes) {
    struct Start {
        std::string_view bytes;
        std::string_view encoding;
    };
    static constexpr Start kStarts[] = {
        {{"\0\0\xFE\xFF", 4}, "UTF-32BE"}, {{"\xFF\xFE\0\0", 4}, "UTF-32LE"}, {{"\0\0\0<", 4}, "UTF-32BE"},
        {{"<\0\0\0", 4}, "UTF-32LE"},      {"\xFE\xFF", "UTF-16BE"},          {"\xFF\xFE", "UTF-16LE"},
        {{"\0<", 2}, "UTF-16BE"},          {{"<\0", 2}, "UTF-16LE"},
    };
    for (const Start& start : kStarts)
        if (bytes.starts_with(start.bytes)) return start.encoding;
    return {};
}

bool namesUtf8(std::string_view encoding) {
    return text::equalsIgnoreCase(text::asciiToUtf16(encoding), u"UTF-8") ||
           text::equalsIgnoreCase(text::asciiToUtf16(encoding), u"UTF8");
}

void refuseUnlessUtf8(const LogFileDescriptor& file, const std::u16string& path, const std::string& declared) {
    char first[4] = {};
    const std::size_t count = readLogBytesAt(file, 0, first, sizeof first, path);
    std::string_view encoding = encodingOfFirstBytes(std::string_view(first, count));
    if (encoding.empty() && !declared.empty() && !namesUtf8(declared)) encoding = declared;
    if (!encoding.empty()) except::throwMessage(ids::LogFileNotUtf8(path, text::utf8ToUtf16Lossy(encoding)));
}

}  // namespace

std::shared_ptr<LogOutputStream> appendToLog(const std::u16string& path, LogFileDescriptor file, LogSync sync) {
    std::uint64_t footerStart = 0;
    struct stat status {};
    {
        const LogFileLock lock(file, path);
        const LogScan scan = scanLog(file, path);
        refuseUnlessUtf8(file, path, scan.declaredEncoding);
        // The reader accepts a lone "warning" element as a document; without a closing
        // "log" tag there is nowhere to write, and writing at its start would destroy it.
        if (scan.logEnd == 0) except::throwMessage(ids::LogFileFileSeek(path, u"no closing </log> tag"));
        if (::fstat(file.get(), &status) != 0)
            except::throwMessage(ids::LogFileOpenFileAppend(path, systemErrorText(errno)));
        footerStart = scan.logEnd;
    }
    return std::make_shared<LogOutputStream>(path, std::move(file), footerStart,
                                             static_cast<std::uint64_t>(status.st_size), sync);
}

}  // namespace orrery::lang::diagnostic
