// The time of a warning as a warning log writes it.
#include "diagnostic/log/log_time_text.hpp"

#include <orrery/text/text.hpp>

#include <cstdint>
#include <cstdio>

namespace orrery::lang::diagnostic {

std::u16string logTimeText(double serial, interp::UtcOffset offset) {
    const interp::DateVector date = interp::calcDatevec(serial, 0);
    char buffer[32];
    const int length = std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%06.3f %+03d%02d",
                                     static_cast<std::int32_t>(date.year), static_cast<std::int32_t>(date.month),
                                     static_cast<std::int32_t>(date.day), static_cast<std::int32_t>(date.hour),
                                     static_cast<std::int32_t>(date.minute), date.seconds, offset.hours, offset.minutes);
    const auto written = static_cast<std::size_t>(length < 0 ? 0 : length);
    return text::asciiToUtf16(std::string_view(buffer, written < sizeof buffer ? written : sizeof buffer - 1));
}

std::u16string logTimeText(double serial) { return logTimeText(serial, interp::localUtcOffset()); }

}  // namespace orrery::lang::diagnostic
