// Creating a new warning log file as a complete empty document.
#include "diagnostic/log/log_create.hpp"

#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <utility>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;
namespace {

std::string emptyDocument() {
    std::string document(kLogHeader);
    document += kLogFooter;
    return document;
}

void syncIfAsked(const LogFileDescriptor& file, LogSync sync, const std::u16string& path) {
    if (sync == LogSync::eachWarning && ::fdatasync(file.get()) != 0)
        except::throwMessage(ids::LogFileFileWrite(path, systemErrorText(errno)));
}

// The document in a file without a name, then linked under the name. Answers no
// descriptor when the folder cannot hold such a file or the name cannot be given
// (the name has come into being meanwhile, or the process's descriptors cannot be
// named): the plain way then creates the file or reports why it cannot.
LogFileDescriptor createNamedWhenComplete(const std::string& name, const std::u16string& path, LogSync sync) {
    const std::filesystem::path folder = std::filesystem::path(name).parent_path();
    LogFileDescriptor file(::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666));
    if (!file.isOpen()) return file;
    writeLogBytesAt(file, 0, emptyDocument(), path);
    syncIfAsked(file, sync, path);
    const std::string self = "/proc/self/fd/" + std::to_string(file.get());
    if (::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) != 0) return LogFileDescriptor(-1);
    return file;
}

}  // namespace

std::shared_ptr<LogOutputStream> createLogFile(const std::u16string& path, LogSync sync) {
    const std::string name = text::utf16ToUtf8(path);
    LogFileDescriptor file = createNamedWhenComplete(name, path, sync);
    if (!file.isOpen()) {
        file = LogFileDescriptor(::open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
        if (!file.isOpen()) except::throwMessage(ids::LogFileOpenFileWrite(path, systemErrorText(errno)));
        writeLogBytesAt(file, 0, emptyDocument(), path);
        syncIfAsked(file, sync, path);
    }
    return std::make_shared<LogOutputStream>(path, std::move(file), kLogHeader.size(), sync);
}

}  // namespace orrery::lang::diagnostic
