// Reading the time text of a warning log element back into a local serial day number.
#pragma once

#include <orrery/interp/dates.hpp>

namespace orrery::lang::diagnostic {

/// The serial day number of a time text "year-month-day hour:minute:second.ms zone"
/// (scanned as "%d-%d-%d %d:%d:%d%*[.,]%d %d"; the milliseconds are a count, the
/// zone is hours and minutes written together, as in "+0100"), moved from the
/// zone's offset to localOffset. Raises "ORRERY:warning:XMLParser:InvalidTimeFormat"
/// unless all eight numbers are read, and the date conversion's errors for a date
/// outside its range.
double readLogTime(const char* text, interp::UtcOffset localOffset);

}  // namespace orrery::lang::diagnostic
