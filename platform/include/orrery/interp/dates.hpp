// Serial day numbers, date vectors, the current local time and the local offset from UTC.
//
// A serial day number counts days in the proleptic Gregorian calendar: day 1 is
// 1 January of year 0, and the fraction is the time of day (0.5 is noon). The
// number carries no zone; it is read as local wall-clock time. The functions live
// in orrery::interp because the interpreter's `now`, `datenum` and `datevec`, and
// the warning log's time stamps, all go through this one pair of conversions.
#pragma once

#include <orrery/export.hpp>

#include <cstdint>
#include <ctime>

namespace orrery::interp {

/// A date split into its parts; all are whole numbers except seconds.
struct DateVector {
    double year = 0;
    double month = 0;
    double day = 0;
    double hour = 0;
    double minute = 0;
    double seconds = 0;

    friend bool operator==(const DateVector&, const DateVector&) = default;
};

/// Splits a serial day number into year, month (1-12), day (1-31), hour (0-23),
/// minute (0-59) and seconds (0 <= seconds < 60, with fraction).
///
/// The time of day is first rounded to a whole number of ticks, and a tick that
/// rounds up to a full minute, hour or day carries into it (so the seconds never
/// read 60). With precision 0 a tick is one millisecond: a time written with
/// milliseconds and converted back gives the same milliseconds. Each further step
/// of precision divides the tick by ten, down to one microsecond at 3; values
/// outside 0..3 are clamped. (A serial number of the present era resolves about
/// ten microseconds, so finer ticks would show only rounding noise.)
///
/// Raises "ORRERY:dates:notFinite" for NaN or an infinity and
/// "ORRERY:dates:outOfRange" for a day outside the years -32767 to 32767.
ORRERY_API DateVector calcDatevec(double serial, int precision = 0);

/// The serial day number of a date. Year and month are taken as whole numbers
/// (their fractions are dropped); a month outside 1-12 moves into the neighbouring
/// years (month 13 is January of the next year, month 0 December of the previous).
/// Day, hour, minute and seconds may hold fractions and may lie outside their
/// usual ranges, including below zero: they are added as they stand, so day 0 is
/// the last day of the previous month and 2024-03-01 00:-30 is 2024-02-29 23:30.
///
/// Raises "ORRERY:dates:notFinite" when a part is NaN or infinite and
/// "ORRERY:dates:outOfRange" when the year leaves -32767 to 32767.
ORRERY_API double datenumFromDatevec(double year, double month, double day, double hour, double minute, double seconds);

/// The same conversion from a date vector.
inline double datenumFromDatevec(const DateVector& date) {
    return datenumFromDatevec(date.year, date.month, date.day, date.hour, date.minute, date.seconds);
}

/// The current local wall-clock time (the process's time zone) as a serial day number.
ORRERY_API double nowSerial();

/// An offset from UTC: whole hours and the remaining minutes, both with the sign
/// of the offset (minus three and a half hours is {-3, -30}).
struct UtcOffset {
    std::int32_t hours = 0;
    std::int32_t minutes = 0;

    friend bool operator==(const UtcOffset&, const UtcOffset&) = default;
};

/// The local zone's standard-time offset from UTC at the calendar time `when`.
///
/// The UTC broken-down time of `when`, with its daylight-saving flag cleared, and
/// the local broken-down time of `when` are both turned back into calendar times
/// as local time; local minus UTC gives the offset in seconds. Because the UTC
/// form is read as standard time, a zone keeps its standard offset while daylight
/// saving time is in effect. Seconds are truncated toward zero to minutes, minutes
/// to hours, and the minutes keep what is left, with the same sign.
ORRERY_API UtcOffset localUtcOffsetAt(std::time_t when);

/// The local offset from UTC now: localUtcOffsetAt(the current calendar time).
ORRERY_API UtcOffset localUtcOffset();

}  // namespace orrery::interp
