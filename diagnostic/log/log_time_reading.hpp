// Reading the time text of a warning log element back into a local serial day number.
#pragma once

#include <orrery/interp/dates.hpp>

#include <array>

namespace orrery::lang::diagnostic {

/// The eight numbers of a time text: year, month, day, hour, minute, second,
/// milliseconds and zone (hours and minutes written together, as in "+0100").
using LogTimeFields = std::array<int, 8>;

/// Scans text exactly as std::sscanf(text, "%d-%d-%d %d:%d:%d%*[.,]%d %d", ...)
/// does in the "C" locale, numbers out of range included; true when all eight
/// numbers are read. (The numbers are read by std::from_chars: the C scanner
/// costs as much as the rest of a warning's element.)
bool scanLogTime(const char* text, LogTimeFields& fields);

/// The serial day number of a time text, moved from the zone's offset to
/// localOffset. Raises "ORRERY:warning:XMLParser:InvalidTimeFormat" unless
/// scanLogTime reads it, and the date conversion's errors for a date outside its
/// range.
double readLogTime(const char* text, interp::UtcOffset localOffset);

}  // namespace orrery::lang::diagnostic
