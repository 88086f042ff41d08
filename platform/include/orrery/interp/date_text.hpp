// A serial day number written as text: the one renderer of dates and times, for
// the warning log, the log summary and the display of warnings.
#pragma once

#include <orrery/export.hpp>
#include <orrery/interp/dates.hpp>

#include <string>

namespace orrery::interp {

/// The forms a date and time is written in.
enum class DateTextForm {
    /// "2026-03-04 10:07:30.250 +0100", the warning log's form: the fields as the
    /// C format "%04d-%02d-%02d %02d:%02d:%06.3f %+03d%02d" prints them, so the
    /// offset's hours and minutes each carry its sign (minus three and a half
    /// hours is "-03-30"), cut at 31 characters.
    LogTime,
    /// "2026-03-04T10:07:30.250+01:00": ISO 8601 with milliseconds and the offset.
    Iso8601,
    /// "2026-03-04 10:07:30": whole seconds (the fraction dropped), no offset.
    WholeSeconds,
};

/// Appends the date and time of serial, split by calcDatevec(serial, 0) (so
/// milliseconds are rounded), in the form, with offset where the form shows one.
/// Raises calcDatevec's errors for a serial number outside the calendar.
ORRERY_API void appendDateText(std::string& out, double serial, DateTextForm form, UtcOffset offset = {});

/// appendDateText into a new string.
ORRERY_API std::string dateText(double serial, DateTextForm form, UtcOffset offset = {});

}  // namespace orrery::interp
