// Reopening an existing warning log to write more warnings before its footer.
#include "diagnostic/log/log_append.hpp"

#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_stream_failure.hpp"
#include "diagnostic/log/warning_log_reader.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;

std::shared_ptr<LogOutputStream> appendToLog(const std::u16string& path, LogSync sync) {
    LogFileDescriptor file(::open(text::utf16ToUtf8(path).c_str(), O_RDWR | O_CLOEXEC));
    if (!file.isOpen()) except::throwMessage(ids::LogFileOpenFileAppend(path, systemErrorText(errno)));
    const std::uint64_t footerStart = findLogEnd(path);
    // The reader accepts a lone "warning" element as a document; without a closing
    // "log" tag there is nowhere to write, and writing at its start would destroy it.
    if (footerStart == 0) except::throwMessage(ids::LogFileFileSeek(path, u"no closing </log> tag"));
    // A warning whose writing was cut short may have left bytes after the footer.
    struct stat status {};
    const bool bytesAfterFooter = ::fstat(file.get(), &status) != 0 ||
                                  static_cast<std::uint64_t>(status.st_size) > footerStart + kLogFooter.size();
    return std::make_shared<LogOutputStream>(path, std::move(file), footerStart, sync, bytesAfterFooter);
}

}  // namespace orrery::lang::diagnostic
