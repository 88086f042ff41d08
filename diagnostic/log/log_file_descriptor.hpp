// An owning handle of an open file descriptor, closed when the handle goes.
#pragma once

#include <unistd.h>

#include <utility>

namespace orrery::lang::diagnostic {

/// Owns one file descriptor (none when negative); move-only.
class LogFileDescriptor {
public:
    explicit LogFileDescriptor(int descriptor) noexcept : descriptor_(descriptor) {}
    LogFileDescriptor(LogFileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    LogFileDescriptor& operator=(LogFileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    LogFileDescriptor(const LogFileDescriptor&) = delete;
    LogFileDescriptor& operator=(const LogFileDescriptor&) = delete;
    ~LogFileDescriptor() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    int get() const noexcept { return descriptor_; }
    bool isOpen() const noexcept { return descriptor_ >= 0; }

private:
    int descriptor_;
};

}  // namespace orrery::lang::diagnostic
