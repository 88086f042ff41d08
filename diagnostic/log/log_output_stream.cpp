// An open warning log file: writing elements before the footer, and opening new logs.
#include "diagnostic/log/log_output_stream.hpp"

#include "diagnostic/log/log_append.hpp"
#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/text/text.hpp>

#include <filesystem>
#include <fstream>
#include <utility>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;
namespace {

std::streamsize sizeOf(std::string_view bytes) { return static_cast<std::streamsize>(bytes.size()); }

std::shared_ptr<LogOutputStream> createLog(const std::u16string& path) {
    auto file = std::make_unique<std::ofstream>();
    file->exceptions(std::ios_base::failbit | std::ios_base::badbit);
    raisingStreamFailureAs<ids::LogFileOpenFileWrite>(
        path, [&] { file->open(text::utf16ToUtf8(path), std::ios_base::out | std::ios_base::trunc); });
    raisingStreamFailureAs<ids::LogFileFileWrite>(path, [&] { file->write(kLogHeader.data(), sizeOf(kLogHeader)); });
    auto log = std::make_shared<LogOutputStream>(path, std::move(file), kLogHeader.size());
    log->writeFooter();
    return log;
}

}  // namespace

LogOutputStream::LogOutputStream(std::u16string path, std::unique_ptr<std::ostream> stream, std::uint64_t footerStart)
    : path_(std::move(path)), stream_(std::move(stream)), footerStart_(footerStart) {
    stream_->exceptions(std::ios_base::failbit | std::ios_base::badbit);
}

void LogOutputStream::writeElement(std::string_view element) {
    raisingStreamFailureAs<ids::LogFileFileWrite>(path_, [&] { stream_->write(element.data(), sizeOf(element)); });
    footerStart_ += element.size();
    writeFooter();
}

void LogOutputStream::writeFooter() {
    raisingStreamFailureAs<ids::LogFileFileWrite>(path_, [&] {
        stream_->write(kLogFooter.data(), sizeOf(kLogFooter));
        stream_->flush();
        stream_->seekp(static_cast<std::streamoff>(footerStart_));
    });
}

std::shared_ptr<LogOutputStream> openLogForWriting(const std::u16string& path) {
    std::error_code ignored;
    if (std::filesystem::exists(std::filesystem::path(text::utf16ToUtf8(path)), ignored)) return appendToLog(path);
    return createLog(path);
}

}  // namespace orrery::lang::diagnostic
