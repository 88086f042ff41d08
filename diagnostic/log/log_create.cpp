// Creating a new warning log file as a complete empty document.
#include "diagnostic/log/log_create.hpp"

#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_file_io.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;
namespace {

constexpr std::uint64_t kEmptyDocumentSize = kLogHeader.size() + kLogFooter.size();

void writeEmptyDocument(const LogFileDescriptor& file, LogSync sync, const std::u16string& path) {
    writeLogBytesAt(file, 0, {kLogHeader, kLogFooter}, path);
    if (sync == LogSync::eachWarning && ::fdatasync(file.get()) != 0)
        except::throwMessage(ids::LogFileFileWrite(path, systemErrorText(errno)));
}

// The name is taken: by a file another writer made meanwhile (answers), or by a
// symbolic link whose target is missing, through which nothing is created.
void raiseIfDanglingLink(const std::string& name, const std::u16string& path) {
    struct stat status {};
    if (::lstat(name.c_str(), &status) == 0 && S_ISLNK(status.st_mode) && ::stat(name.c_str(), &status) != 0)
        except::throwMessage(ids::LogFileDanglingLink(path));
}

// The document in a file without a name, then linked under the name. Answers none
// when the folder cannot hold such a file or the process's descriptors cannot be
// named; a closed descriptor when the name is taken.
std::optional<LogFileDescriptor> createNamedWhenComplete(const std::string& name, const std::u16string& path,
                                                         LogSync sync) {
    const std::filesystem::path folder = std::filesystem::path(name).parent_path();
    LogFileDescriptor file(::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0666));
    if (!file.isOpen()) return std::nullopt;
    writeEmptyDocument(file, sync, path);
    const std::string self = "/proc/self/fd/" + std::to_string(file.get());
    if (::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0) return file;
    if (errno != EEXIST) return std::nullopt;
    raiseIfDanglingLink(name, path);
    return LogFileDescriptor(-1);
}

// Exclusive creation refuses an existing name, a link among them.
LogFileDescriptor createInPlace(const std::string& name, const std::u16string& path, LogSync sync) {
    LogFileDescriptor file(::open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.isOpen()) {
        if (errno != EEXIST) except::throwMessage(ids::LogFileOpenFileWrite(path, systemErrorText(errno)));
        raiseIfDanglingLink(name, path);
        return file;
    }
    writeEmptyDocument(file, sync, path);
    return file;
}

}  // namespace

std::shared_ptr<LogOutputStream> createLogFile(const std::u16string& path, LogSync sync) {
    const std::string name = text::utf16ToUtf8(path);
    std::optional<LogFileDescriptor> file = createNamedWhenComplete(name, path, sync);
    if (!file) file = createInPlace(name, path, sync);
    if (!file->isOpen()) return nullptr;
    return std::make_shared<LogOutputStream>(path, std::move(*file), kLogHeader.size(), kEmptyDocumentSize, sync);
}

}  // namespace orrery::lang::diagnostic
