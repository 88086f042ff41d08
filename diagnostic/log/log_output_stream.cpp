// An open warning log file: writing elements before the footer, with other
// writers, without ever leaving a document that does not load.
#include "diagnostic/log/log_output_stream.hpp"

#include "diagnostic/log/log_append.hpp"
#include "diagnostic/log/log_create.hpp"
#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_file_io.hpp"
#include "diagnostic/log/log_file_lock.hpp"
#include "diagnostic/log/log_file_open.hpp"
#include "diagnostic/log/log_footer_search.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/except/throw_message.hpp>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <utility>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;

LogSync logSyncFromEnvironment() {
    const char* setting = std::getenv("ORRERY_LOG_SYNC");
    return setting != nullptr && std::string_view(setting) == "1" ? LogSync::eachWarning : LogSync::none;
}

LogOutputStream::LogOutputStream(std::u16string path, LogFileDescriptor file, std::uint64_t footerStart,
                                 std::uint64_t fileSize, LogSync sync)
    : path_(std::move(path)), file_(std::move(file)), footerStart_(footerStart), fileSize_(fileSize), sync_(sync) {}

// The rest goes first, after the old footer, so that the document still ends
// there while it is written; then the head replaces the old footer in one write
// of a few bytes. With the sync setting the rest is on the disk before the head
// is written, so that a power cut cannot keep the head without the rest.
void LogOutputStream::writeElement(std::string_view element) {
    const LogFileLock lock(file_, path_);
    locateFooter();
    const std::size_t headSize = std::min(element.size(), kLogFooter.size());
    bool footerOverwritten = false;
    try {
        writeLogBytesAt(file_, footerStart_ + headSize, {element.substr(headSize), kLogFooter}, path_);
        syncToDisk();
        footerOverwritten = true;
        writeLogBytesAt(file_, footerStart_, {element.substr(0, headSize)}, path_);
        syncToDisk();
    } catch (...) {
        putBackFooter(footerOverwritten);
        throw;
    }
    footerStart_ += element.size();
    fileSize_ = footerStart_ + kLogFooter.size();
}

// Under the lock: where the footer is now. The file keeps the size this writer
// left while nobody else wrote; other writers only ever add, so their warnings
// stand after where this writer's footer was, and a shorter file was cut by
// someone (rotation by copy and truncation) and is looked at from its start.
//
// The size is asked by seeking to the end (the file's own position is not used,
// every write is positioned): asking the status would also read the file's
// times, after which the system must stamp the next write with a fine-grained
// time, which costs more than the write.
void LogOutputStream::locateFooter() {
    const off_t end = ::lseek(file_.get(), 0, SEEK_END);
    if (end < 0) except::throwMessage(ids::LogFileFileWrite(path_, systemErrorText(errno)));
    const auto size = static_cast<std::uint64_t>(end);
    if (size != fileSize_) {
        if (size == 0) return startAfresh();
        std::optional<std::uint64_t> footer;
        if (size >= footerStart_ + kLogFooter.size()) footer = findLogFooter(file_, footerStart_, scratch_, path_);
        if (!footer) footer = findLogFooter(file_, 0, scratch_, path_);
        if (!footer) except::throwMessage(ids::LogFileFooterMissing(path_));
        footerStart_ = *footer;
        fileSize_ = size;
    }
    if (fileSize_ > footerStart_ + kLogFooter.size()) cutAfterFooter();
}

// What follows the footer must be what an append cut short leaves, which goes
// before anything is written; anything else is not this log's, and stays.
void LogOutputStream::cutAfterFooter() {
    readLogBytesToEnd(file_, footerStart_ + kLogFooter.size(), scratch_, path_);
    if (!isWhitespaceThenInterruptedAppend(scratch_)) except::throwMessage(ids::LogFileFooterMissing(path_));
    const auto end = footerStart_ + kLogFooter.size();
    if (::ftruncate(file_.get(), static_cast<off_t>(end)) != 0)
        except::throwMessage(ids::LogFileFileWrite(path_, systemErrorText(errno)));
    fileSize_ = end;
}

// An emptied file becomes a complete empty document again before the warning.
void LogOutputStream::startAfresh() {
    writeLogBytesAt(file_, 0, {kLogHeader, kLogFooter}, path_);
    syncToDisk();
    footerStart_ = kLogHeader.size();
    fileSize_ = kLogHeader.size() + kLogFooter.size();
}

void LogOutputStream::syncToDisk() {
    if (sync_ == LogSync::eachWarning && ::fdatasync(file_.get()) != 0)
        except::throwMessage(ids::LogFileFileWrite(path_, systemErrorText(errno)));
}

// After a failed write: the old footer written again where the head may have
// replaced a part of it, and what the failed write left after it cut off. Where
// the system refuses, the next warning finds the footer again.
void LogOutputStream::putBackFooter(bool footerOverwritten) noexcept {
    const bool footerInPlace =
        !footerOverwritten || ::pwrite(file_.get(), kLogFooter.data(), kLogFooter.size(),
                                       static_cast<off_t>(footerStart_)) == static_cast<ssize_t>(kLogFooter.size());
    const auto end = footerStart_ + kLogFooter.size();
    fileSize_ = footerInPlace && ::ftruncate(file_.get(), static_cast<off_t>(end)) == 0 ? end : 0;
}

// A name may come into being or go between the look and the creation (another
// process creating the same log); a few rounds settle it.
std::shared_ptr<LogOutputStream> openLogForWriting(const std::u16string& path) {
    const LogSync sync = logSyncFromEnvironment();
    constexpr int kRounds = 3;
    for (int round = 0; round < kRounds; ++round) {
        if (LogFileDescriptor file = openExistingLogFile(path, LogAccess::update); file.isOpen())
            return appendToLog(path, std::move(file), sync);
        if (auto created = createLogFile(path, sync)) return created;
    }
    except::throwMessage(ids::LogFileOpenFileWrite(path, systemErrorText(EEXIST)));
}

}  // namespace orrery::lang::diagnostic
