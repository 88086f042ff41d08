// The time of a warning as a warning log writes it.
#include "diagnostic/log/log_time_text.hpp"

#include <orrery/text/text.hpp>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
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

}  // namespace

std::u16string logTimeText(double serial, interp::UtcOffset offset) {
    const interp::DateVector date = interp::calcDatevec(serial, 0);
    char buffer[32];
    const int length =
        std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%06.3f %+03d%02d",
                      static_cast<std::int32_t>(date.year), static_cast<std::int32_t>(date.month),
                      static_cast<std::int32_t>(date.day), static_cast<std::int32_t>(date.hour),
                      static_cast<std::int32_t>(date.minute), date.seconds, offset.hours, offset.minutes);
    const auto written = static_cast<std::size_t>(length < 0 ? 0 : length);
    return text::asciiToUtf16(std::string_view(buffer, written < sizeof buffer ? written : sizeof buffer - 1));
}

std::u16string logTimeText(double serial) { return logTimeText(serial, currentUtcOffset()); }

}  // namespace orrery::lang::diagnostic
