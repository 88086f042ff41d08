// Dates and times as text, on {fmt}: its integer and fixed-point conversions pad
// and round as the C library's do, without the C library's formatter or locale.
#include <orrery/interp/date_text.hpp>

#include <fmt/format.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>

namespace orrery::interp {
namespace {

// What the log's fixed C buffer of 32 characters holds.
constexpr std::size_t kLogTimeLength = 31;

}  // namespace

void appendDateText(std::string& out, double serial, DateTextForm form, UtcOffset offset) {
    const DateVector date = calcDatevec(serial, 0);
    const auto year = static_cast<std::int32_t>(date.year);
    const auto month = static_cast<std::int32_t>(date.month);
    const auto day = static_cast<std::int32_t>(date.day);
    const auto hour = static_cast<std::int32_t>(date.hour);
    const auto minute = static_cast<std::int32_t>(date.minute);
    const std::size_t start = out.size();
    auto to = std::back_inserter(out);
    switch (form) {
        case DateTextForm::LogTime:
            fmt::format_to(to, "{:04d}-{:02d}-{:02d} {:02d}:{:02d}:{:06.3f} {:+03d}{:02d}", year, month, day, hour,
                           minute, date.seconds, offset.hours, offset.minutes);
            if (out.size() - start > kLogTimeLength) out.resize(start + kLogTimeLength);
            break;
        case DateTextForm::Iso8601: {
            const char sign = offset.hours < 0 || offset.minutes < 0 ? '-' : '+';
            fmt::format_to(to, "{:04d}-{:02d}-{:02d}T{:02d}:{:02d}:{:06.3f}{}{:02d}:{:02d}", year, month, day, hour,
                           minute, date.seconds, sign, std::abs(offset.hours), std::abs(offset.minutes));
            break;
        }
        case DateTextForm::WholeSeconds:
            fmt::format_to(to, "{:04d}-{:02d}-{:02d} {:02d}:{:02d}:{:02d}", year, month, day, hour, minute,
                           static_cast<std::int32_t>(std::floor(date.seconds)));
            break;
    }
}

std::string dateText(double serial, DateTextForm form, UtcOffset offset) {
    std::string out;
    appendDateText(out, serial, form, offset);
    return out;
}

}  // namespace orrery::interp
