// The time of a warning as a warning log writes it.
#include "diagnostic/log/log_time_text.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <optional>
#include <string>

namespace orrery::lang::diagnostic {
namespace {

// The local offset now, asked of the platform at most once per second and zone
// setting: asking looks the zone data up in the file system twice, and a busy log
// writes many warnings a second. A change of the TZ variable is seen at once.
interp::UtcOffset currentUtcOffset() {
    struct Asked {
        std::time_t second = -1;
        std::optional<std::string> zone;
        interp::UtcOffset offset;
    };
    thread_local Asked last;
    const std::time_t now = std::time(nullptr);
    const char* zone = std::getenv("TZ");
    const bool sameZone = zone != nullptr ? last.zone && *last.zone == zone : !last.zone;
    if (now != last.second || !sameZone) {
        last.offset = interp::localUtcOffsetAt(now);
        last.second = now;
        last.zone = zone != nullptr ? std::optional<std::string>(zone) : std::nullopt;
    }
    return last.offset;
}

// The C format the time text follows, field by field. The fields are printed
// here directly, which costs a fraction of the C library's general formatter; a
// test compares the two over the awkward cases.
//   "%04d-%02d-%02d %02d:%02d:%06.3f %+03d%02d" into a buffer of 32 characters
constexpr std::size_t kBufferSize = 32;
constexpr double kMillisecondsPerDay = 86400e3;

// Appends digits (which may start with "-") as the C conversions "%0Nd", "%+0Nd"
// and "%0N.3f" print them: the sign, zeros up to the width in all, the digits.
void appendZeroPadded(std::string& out, std::string_view digits, std::size_t width, bool plusSign = false) {
    std::string_view sign = plusSign ? "+" : "";
    if (!digits.empty() && digits.front() == '-') {
        sign = "-";
        digits.remove_prefix(1);
    }
    out.append(sign);
    if (sign.size() + digits.size() < width) out.append(width - sign.size() - digits.size(), '0');
    out.append(digits);
}

void appendInteger(std::string& out, std::int32_t value, std::size_t width, bool plusSign = false) {
    char digits[16];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    appendZeroPadded(out, std::string_view(digits, static_cast<std::size_t>(end - digits)), width, plusSign);
}

// "%06.3f": std::to_chars rounds as printf does. Seconds are below 61; anything
// else (not finite, or huge) is left to the C library.
void appendSeconds(std::string& out, double seconds) {
    char digits[32];
    if (std::isfinite(seconds) && std::abs(seconds) < 1e15) {
        const auto end = std::to_chars(std::begin(digits), std::end(digits), seconds, std::chars_format::fixed, 3).ptr;
        appendZeroPadded(out, std::string_view(digits, static_cast<std::size_t>(end - digits)), 6);
    } else {
        const int length = std::snprintf(digits, sizeof digits, "%06.3f", seconds);
        out.append(digits, static_cast<std::size_t>(std::clamp(length, 0, static_cast<int>(sizeof digits) - 1)));
    }
}

// Appends the text for serial and offset to out.
void appendTimeText(std::string& out, double serial, interp::UtcOffset offset) {
    const interp::DateVector date = interp::calcDatevec(serial, 0);
    const std::size_t start = out.size();
    appendInteger(out, static_cast<std::int32_t>(date.year), 4);
    out += '-';
    appendInteger(out, static_cast<std::int32_t>(date.month), 2);
    out += '-';
    appendInteger(out, static_cast<std::int32_t>(date.day), 2);
    out += ' ';
    appendInteger(out, static_cast<std::int32_t>(date.hour), 2);
    out += ':';
    appendInteger(out, static_cast<std::int32_t>(date.minute), 2);
    out += ':';
    appendSeconds(out, date.seconds);
    out += ' ';
    appendInteger(out, offset.hours, 3, true);
    appendInteger(out, offset.minutes, 2);
    if (out.size() - start >= kBufferSize) out.resize(start + kBufferSize - 1);  // what the C buffer holds
}

}  // namespace

std::string logTimeText(double serial, interp::UtcOffset offset) {
    std::string out;
    appendTimeText(out, serial, offset);
    return out;
}

std::string logTimeText(double serial) { return logTimeText(serial, currentUtcOffset()); }

// The text shows milliseconds, so a time that rounds to the millisecond of the
// last one written, with the same offset, is written as that one was.
void appendLogTimeText(std::string& out, double serial) {
    struct Written {
        double millisecond = std::numeric_limits<double>::quiet_NaN();
        interp::UtcOffset offset{};
        std::string text;
    };
    thread_local Written last;
    const interp::UtcOffset offset = currentUtcOffset();
    const double millisecond = std::round(serial * kMillisecondsPerDay);
    if (millisecond != last.millisecond || offset != last.offset) {
        last.text.clear();
        appendTimeText(last.text, serial, offset);
        last.millisecond = millisecond;
        last.offset = offset;
    }
    out += last.text;
}

}  // namespace orrery::lang::diagnostic
