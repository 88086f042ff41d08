// Reading a fuzz input as a sequence of small decisions: bytes, numbers and
// texts taken from the front. An exhausted input answers zeros and empty texts,
// so every input decodes to something.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace orrery::fuzz {

class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    bool empty() const noexcept { return rest_.empty(); }

    std::uint8_t byte() {
        if (rest_.empty()) return 0;
        const auto b = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return b;
    }

    /// A number from 0 to limit - 1 (limit > 0).
    std::size_t below(std::size_t limit) { return byte() % limit; }

    bool flag() { return (byte() & 1) != 0; }

    /// Eight bytes as an unsigned integer.
    std::uint64_t bits64() {
        std::uint64_t bits = 0;
        for (int k = 0; k < 8; ++k) bits = (bits << 8) | byte();
        return bits;
    }

    /// Eight bytes as a double: any bit pattern, NaNs and infinities included.
    double anyDouble() {
        const std::uint64_t bits = bits64();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

    /// A small number, more often a whole one, sometimes a special value.
    double number() {
        switch (below(8)) {
            case 0: return anyDouble();
            case 1: return static_cast<double>(static_cast<std::int8_t>(byte())) / 4.0;
            default: return static_cast<double>(static_cast<std::int8_t>(byte()));
        }
    }

    /// A text of up to maxLength bytes: a length byte, then that many bytes.
    std::string text(std::size_t maxLength = 64) {
        const std::size_t wanted = below(maxLength + 1);  // taken before the size is read
        const std::size_t length = std::min(wanted, rest_.size());
        std::string t(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return t;
    }

    /// Everything not yet taken.
    std::string_view rest() {
        const std::string_view all = rest_;
        rest_ = {};
        return all;
    }

private:
    std::string_view rest_;
};

}  // namespace orrery::fuzz
