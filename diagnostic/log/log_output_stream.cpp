// An open warning log file: writing elements before the footer without ever
// leaving a document that does not load.
#include "diagnostic/log/log_output_stream.hpp"

#include "diagnostic/log/log_append.hpp"
#include "diagnostic/log/log_create.hpp"
#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <utility>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;

LogSync logSyncFromEnvironment() {
    const char* setting = std::getenv("ORRERY_LOG_SYNC");
    return setting != nullptr && std::string_view(setting) == "1" ? LogSync::eachWarning : LogSync::none;
}

void writeLogBytesAt(const LogFileDescriptor& file, std::uint64_t offset, std::string_view bytes,
                     const std::u16string& path) {
    while (!bytes.empty()) {
        const ssize_t written = ::pwrite(file.get(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) except::throwMessage(ids::LogFileFileWrite(path, systemErrorText(written < 0 ? errno : EIO)));
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += static_cast<std::uint64_t>(written);
    }
}

LogOutputStream::LogOutputStream(std::u16string path, LogFileDescriptor file, std::uint64_t footerStart, LogSync sync,
                                 bool bytesAfterFooter)
    : path_(std::move(path)),
      file_(std::move(file)),
      footerStart_(footerStart),
      sync_(sync),
      bytesAfterFooter_(bytesAfterFooter) {}

// The rest goes first, after the old footer, so that the document still ends
// there while it is written; then the head replaces the old footer in one write
// of a few bytes. With the sync setting the rest is on the disk before the head
// is written, so that a power cut cannot keep the head without the rest.
void LogOutputStream::writeElement(std::string_view element) {
    const std::size_t headSize = std::min(element.size(), kLogFooter.size());
    pending_.assign(element.substr(headSize));
    pending_ += kLogFooter;
    bool footerOverwritten = false;
    try {
        writeLogBytesAt(file_, footerStart_ + headSize, pending_, path_);
        syncToDisk();
        footerOverwritten = true;
        writeLogBytesAt(file_, footerStart_, element.substr(0, headSize), path_);
        syncToDisk();
    } catch (...) {
        putBackFooter(footerOverwritten);
        throw;
    }
    footerStart_ += element.size();
    if (bytesAfterFooter_) cutBytesAfterFooter();
}

void LogOutputStream::syncToDisk() {
    if (sync_ == LogSync::eachWarning && ::fdatasync(file_.get()) != 0)
        except::throwMessage(ids::LogFileFileWrite(path_, systemErrorText(errno)));
}

// After a failed write: the old footer written again where the head may have
// replaced a part of it, and what the failed write left after it cut off. Where
// the system refuses, the next warning that is written cuts it off.
void LogOutputStream::putBackFooter(bool footerOverwritten) noexcept {
    const bool footerInPlace =
        !footerOverwritten || ::pwrite(file_.get(), kLogFooter.data(), kLogFooter.size(),
                                       static_cast<off_t>(footerStart_)) == static_cast<ssize_t>(kLogFooter.size());
    bytesAfterFooter_ = true;
    if (footerInPlace) cutBytesAfterFooter();
}

void LogOutputStream::cutBytesAfterFooter() noexcept {
    if (::ftruncate(file_.get(), static_cast<off_t>(footerStart_ + kLogFooter.size())) == 0) bytesAfterFooter_ = false;
}

std::shared_ptr<LogOutputStream> openLogForWriting(const std::u16string& path) {
    const LogSync sync = logSyncFromEnvironment();
    std::error_code ignored;
    if (std::filesystem::exists(std::filesystem::path(text::utf16ToUtf8(path)), ignored))
        return appendToLog(path, sync);
    return createLogFile(path, sync);
}

}  // namespace orrery::lang::diagnostic
