// The current local time as a serial day number, and the local offset from UTC.
#include <orrery/interp/dates.hpp>

#include <chrono>
#include <ctime>

namespace orrery::interp {

double nowSerial() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const auto wholeSeconds = floor<seconds>(now);
    const std::time_t calendarTime = system_clock::to_time_t(wholeSeconds);
    const double fraction = duration<double>(now - wholeSeconds).count();

    std::tm local{};
    // A moment the local zone cannot express falls back to UTC.
    if (localtime_r(&calendarTime, &local) == nullptr) gmtime_r(&calendarTime, &local);
    return datenumFromDatevec(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                              local.tm_sec + fraction);
}

UtcOffset localUtcOffsetAt(std::time_t when) {
    std::tm utc{};
    std::tm local{};
    gmtime_r(&when, &utc);
    localtime_r(&when, &local);
    // Read back as standard time, so the offset stays the standard one all year.
    utc.tm_isdst = 0;
    const std::time_t utcAsLocal = std::mktime(&utc);
    const std::time_t localAsLocal = std::mktime(&local);

    const auto seconds = static_cast<long long>(std::difftime(localAsLocal, utcAsLocal));
    const auto totalMinutes = static_cast<std::int32_t>(seconds / 60);
    UtcOffset offset;
    offset.hours = totalMinutes / 60;
    offset.minutes = totalMinutes - 60 * offset.hours;
    return offset;
}

UtcOffset localUtcOffset() { return localUtcOffsetAt(std::time(nullptr)); }

}  // namespace orrery::interp
