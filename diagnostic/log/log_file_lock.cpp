// The exclusive lock a writer holds on a warning log file while it appends.
#include "diagnostic/log/log_file_lock.hpp"

#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/except/throw_message.hpp>

#include <fcntl.h>

#include <cerrno>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;
namespace {

// Whole-file lock of the given type on the open file description.
int lockWholeFile(int descriptor, short type, int command) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = 0;
    lock.l_len = 0;
    return ::fcntl(descriptor, command, &lock);
}

}  // namespace

LogFileLock::LogFileLock(const LogFileDescriptor& file, const std::u16string& path) : descriptor_(file.get()) {
    while (lockWholeFile(descriptor_, F_WRLCK, F_OFD_SETLKW) != 0)
        if (errno != EINTR) except::throwMessage(ids::LogFileFileLock(path, systemErrorText(errno)));
}

LogFileLock::~LogFileLock() { lockWholeFile(descriptor_, F_UNLCK, F_OFD_SETLK); }

}  // namespace orrery::lang::diagnostic
