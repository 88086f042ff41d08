// An open warning log file: writing elements before the footer, and opening new logs.
#include "diagnostic/log/log_output_stream.hpp"

#include "diagnostic/log/log_append.hpp"
#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;
namespace {

// All of bytes at offset, however many writes the system takes; a failure is
// "FileWrite" with the system's text for the error.
void writeAt(const LogFileDescriptor& file, std::uint64_t offset, std::string_view bytes, const std::u16string& path) {
    while (!bytes.empty()) {
        const ssize_t written = ::pwrite(file.get(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) except::throwMessage(ids::LogFileFileWrite(path, systemErrorText(written < 0 ? errno : EIO)));
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += static_cast<std::uint64_t>(written);
    }
}

// A new log is a complete empty document at once: header and footer.
std::shared_ptr<LogOutputStream> createLog(const std::u16string& path) {
    LogFileDescriptor file(::open(text::utf16ToUtf8(path).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (!file.isOpen()) except::throwMessage(ids::LogFileOpenFileWrite(path, systemErrorText(errno)));
    std::string document(kLogHeader);
    document += kLogFooter;
    writeAt(file, 0, document, path);
    return std::make_shared<LogOutputStream>(path, std::move(file), kLogHeader.size());
}

}  // namespace

LogOutputStream::LogOutputStream(std::u16string path, LogFileDescriptor file, std::uint64_t footerStart)
    : path_(std::move(path)), file_(std::move(file)), footerStart_(footerStart) {}

void LogOutputStream::writeElement(std::string_view element) {
    pending_.assign(element);
    pending_ += kLogFooter;
    writeAt(file_, footerStart_, pending_, path_);
    footerStart_ += element.size();
}

std::shared_ptr<LogOutputStream> openLogForWriting(const std::u16string& path) {
    std::error_code ignored;
    if (std::filesystem::exists(std::filesystem::path(text::utf16ToUtf8(path)), ignored)) return appendToLog(path);
    return createLog(path);
}

}  // namespace orrery::lang::diagnostic
