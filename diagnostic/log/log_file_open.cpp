// Opening an existing warning log file by name: regular files only, and never
// waiting on a pipe or device that the name leads to.
#include "diagnostic/log/log_file_open.hpp"

#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <fcntl.h>

#include <cerrno>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;
namespace {

[[noreturn]] void raiseOpenFailure(const std::u16string& path, LogAccess access, int error) {
    if (access == LogAccess::read) except::throwMessage(ids::LogFileOpenFileRead(path, systemErrorText(error)));
    except::throwMessage(ids::LogFileOpenFileAppend(path, systemErrorText(error)));
}

}  // namespace

void refuseUnlessRegularFile(const struct stat& status, const std::u16string& path) {
    if (S_ISREG(status.st_mode)) return;
    if (S_ISDIR(status.st_mode)) except::throwMessage(ids::LogFileIsFolder(path));
    if (S_ISFIFO(status.st_mode)) except::throwMessage(ids::LogFileIsPipe(path));
    if (S_ISSOCK(status.st_mode)) except::throwMessage(ids::LogFileIsSocket(path));
    except::throwMessage(ids::LogFileIsDevice(path));
}

// The status is asked first so that a pipe or device is never opened at all; the
// open itself does not block (a pipe that takes the name meanwhile) and the
// opened file is asked again, since the name may have changed in between.
LogFileDescriptor openExistingLogFile(const std::u16string& path, LogAccess access) {
    const std::string name = text::utf16ToUtf8(path);
    struct stat status {};
    if (::stat(name.c_str(), &status) != 0) {
        if (errno == ENOENT) return LogFileDescriptor(-1);
        raiseOpenFailure(path, access, errno);
    }
    refuseUnlessRegularFile(status, path);
    const int mode = access == LogAccess::read ? O_RDONLY : O_RDWR;
    LogFileDescriptor file(::open(name.c_str(), mode | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) {
        if (errno == ENOENT) return file;
        raiseOpenFailure(path, access, errno);
    }
    if (::fstat(file.get(), &status) != 0) raiseOpenFailure(path, access, errno);
    refuseUnlessRegularFile(status, path);
    const int flags = ::fcntl(file.get(), F_GETFL);
    if (flags < 0 || ::fcntl(file.get(), F_SETFL, flags & ~O_NONBLOCK) != 0) raiseOpenFailure(path, access, errno);
    return file;
}

}  // namespace orrery::lang::diagnostic
