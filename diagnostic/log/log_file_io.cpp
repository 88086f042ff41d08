// Positioned reads and writes of an open warning log file.
#include "diagnostic/log/log_file_io.hpp"

#include "diagnostic/log/log_file_ids.hpp"
#include "diagnostic/log/log_stream_failure.hpp"

#include <orrery/except/throw_message.hpp>

#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;

void writeLogBytesAt(const LogFileDescriptor& file, std::uint64_t offset,
                     std::initializer_list<std::string_view> pieces, const std::u16string& path) {
    std::array<iovec, 4> vectors{};
    std::size_t count = 0;
    for (std::string_view piece : pieces)
        if (!piece.empty() && count < vectors.size())
            vectors[count++] = {const_cast<char*>(piece.data()), piece.size()};
    iovec* next = vectors.data();
    while (count > 0) {
        const ssize_t written = ::pwritev(file.get(), next, static_cast<int>(count), static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) except::throwMessage(ids::LogFileFileWrite(path, systemErrorText(written < 0 ? errno : EIO)));
        offset += static_cast<std::uint64_t>(written);
        // Drops what was written: whole pieces, then the front of a piece cut short.
        for (auto left = static_cast<std::size_t>(written); left > 0;) {
            const std::size_t taken = std::min(left, next->iov_len);
            next->iov_base = static_cast<char*>(next->iov_base) + taken;
            next->iov_len -= taken;
            left -= taken;
            if (next->iov_len == 0) {
                ++next;
                --count;
            }
        }
    }
}

std::size_t readLogBytesAt(const LogFileDescriptor& file, std::uint64_t offset, char* out, std::size_t size,
                           const std::u16string& path) {
    std::size_t count = 0;
    while (count < size) {
        const ssize_t got = ::pread(file.get(), out + count, size - count, static_cast<off_t>(offset + count));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) except::throwMessage(ids::LogFileFileRead(path, systemErrorText(errno)));
        if (got == 0) break;
        count += static_cast<std::size_t>(got);
    }
    return count;
}

void readLogBytesToEnd(const LogFileDescriptor& file, std::uint64_t offset, std::string& out,
                       const std::u16string& path) {
    constexpr std::size_t kBlock = std::size_t{64} * 1024;
    out.clear();
    std::size_t count = 0;
    do {
        const std::size_t start = out.size();
        out.resize(start + kBlock);
        count = readLogBytesAt(file, offset + start, out.data() + start, kBlock, path);
        out.resize(start + count);
    } while (count == kBlock);
}

}  // namespace orrery::lang::diagnostic
