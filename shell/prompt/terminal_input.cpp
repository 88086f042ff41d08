// One UTF-8 character at a time from the terminal, stopping at Ctrl-C.
#include "shell/prompt/terminal_input.hpp"

#include "shell/eval/interrupt.hpp"

#include <unicode/utf8.h>

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>

namespace orrery::shell::prompt {
namespace {

constexpr unsigned char kControlC = 0x03;  // arrives as a byte when the terminal does not turn it into SIGINT
constexpr int kReplacement = 0xFFFD;

/// One byte; false at end of input or when Ctrl-C interrupted the wait.
bool readByte(int fd, unsigned char& byte) {
    for (;;) {
        const ssize_t got = ::read(fd, &byte, 1);
        if (got == 1) break;
        if (got < 0 && errno == EINTR) {
            if (!eval::takeInterrupt()) continue;
            eval::requestInterrupt();  // left set for the prompt, which drops the line
        }
        return false;
    }
    if (byte != kControlC) return true;
    eval::requestInterrupt();
    return false;
}

}  // namespace

int readTerminalCharacter(std::FILE* stream) {
    const int fd = fileno(stream);
    std::array<std::uint8_t, U8_MAX_LENGTH> bytes{};
    if (!readByte(fd, bytes[0])) return -1;
    if (U8_IS_SINGLE(bytes[0])) return bytes[0];
    const int length = 1 + U8_COUNT_TRAIL_BYTES(bytes[0]);
    for (int i = 1; i < length; ++i) {
        if (!readByte(fd, bytes[static_cast<std::size_t>(i)])) return -1;
    }
    int offset = 0;
    UChar32 point = 0;
    U8_NEXT(bytes.data(), offset, length, point);
    return point < 0 || offset != length ? kReplacement : point;
}

}  // namespace orrery::shell::prompt
