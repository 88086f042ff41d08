// The time of a warning as a warning log writes it.
#include "diagnostic/log/log_time_text.hpp"

#include <orrery/interp/date_text.hpp>

#include <cmath>
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

constexpr double kMillisecondsPerDay = 86400e3;

}  // namespace

std::string logTimeText(double serial, interp::UtcOffset offset) {
    return interp::dateText(serial, interp::DateTextForm::LogTime, offset);
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
        interp::appendDateText(last.text, serial, interp::DateTextForm::LogTime, offset);
        last.millisecond = millisecond;
        last.offset = offset;
    }
    out += last.text;
}

}  // namespace orrery::lang::diagnostic
