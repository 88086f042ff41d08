// Serial day numbers to date vectors and back, on the C++ calendar types.
#include "dates/date_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/interp/dates.hpp>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace orrery::interp {
namespace {

using namespace std::chrono;

constexpr std::int64_t secondsPerDay = 86400;

// The day before 1 January of year 0: serial day number 0.
constexpr sys_days serialOrigin = sys_days{year{0} / January / 1} - days{1};

constexpr std::int64_t serialOf(sys_days day) { return (day - serialOrigin).count(); }

// Serial days of the first and one past the last day the calendar types hold.
constexpr std::int64_t firstDay = serialOf(sys_days{year::min() / January / 1});
constexpr std::int64_t endDay = serialOf(sys_days{year::max() / December / 31}) + 1;

constexpr int minYear = static_cast<int>(year::min());
constexpr int maxYear = static_cast<int>(year::max());

void requireFinite(double value) {
    if (!std::isfinite(value)) except::throwMessage(messages::NotFinite());
}

std::int64_t ticksPerSecond(int precision) {
    std::int64_t ticks = 1000;
    for (int step = std::clamp(precision, 0, 3); step > 0; --step) ticks *= 10;
    return ticks;
}

// The first day of the month that lies `monthIndex` months after January of year 0.
sys_days firstOfMonth(std::int64_t monthIndex) {
    std::int64_t wholeYears = monthIndex / 12;
    if (monthIndex % 12 < 0) --wholeYears;
    const auto monthOfYear = static_cast<unsigned>(monthIndex - 12 * wholeYears + 1);
    return sys_days{year{static_cast<int>(wholeYears)} / month{monthOfYear} / 1};
}

}  // namespace

DateVector calcDatevec(double serial, int precision) {
    requireFinite(serial);
    if (serial < static_cast<double>(firstDay) || serial >= static_cast<double>(endDay))
        except::throwMessage(messages::OutOfRange());

    const std::int64_t perSecond = ticksPerSecond(precision);
    const std::int64_t perDay = secondsPerDay * perSecond;
    const double wholeDays = std::floor(serial);
    auto day = static_cast<std::int64_t>(wholeDays);
    std::int64_t ticks = std::llround((serial - wholeDays) * static_cast<double>(perDay));
    if (ticks >= perDay) {
        ++day;
        ticks -= perDay;
    }
    if (day >= endDay) except::throwMessage(messages::OutOfRange());

    const year_month_day date{serialOrigin + days{day}};
    const std::int64_t perMinute = 60 * perSecond;
    DateVector out;
    out.year = static_cast<int>(date.year());
    out.month = static_cast<unsigned>(date.month());
    out.day = static_cast<unsigned>(date.day());
    const std::int64_t hours = ticks / (60 * perMinute);
    const std::int64_t minutes = ticks / perMinute % 60;
    out.hour = static_cast<double>(hours);
    out.minute = static_cast<double>(minutes);
    out.seconds = static_cast<double>(ticks % perMinute) / static_cast<double>(perSecond);
    return out;
}

double datenumFromDatevec(double year, double month, double day, double hour, double minute, double seconds) {
    for (double part : {year, month, day, hour, minute, seconds}) requireFinite(part);

    // Months counted from January of year 0; the bounds keep the arithmetic exact.
    const double monthIndex = std::floor(year) * 12 + (std::floor(month) - 1);
    const double yearOfMonth = std::floor(monthIndex / 12);
    if (std::abs(year) > 1e9 || std::abs(month) > 1e10 || yearOfMonth < minYear || yearOfMonth > maxYear)
        except::throwMessage(messages::OutOfRange());

    const auto firstDayOfMonth = static_cast<double>(serialOf(firstOfMonth(static_cast<std::int64_t>(monthIndex))));
    const double timeOfDay = ((hour * 60 + minute) * 60 + seconds) / static_cast<double>(secondsPerDay);
    return firstDayOfMonth + (day - 1) + timeOfDay;
}

}  // namespace orrery::interp
