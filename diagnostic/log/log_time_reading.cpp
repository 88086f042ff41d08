// The time text of a warning log element, read back.
#include "diagnostic/log/log_time_reading.hpp"

#include "diagnostic/log/xml_parser_ids.hpp"

#include <orrery/except/throw_message.hpp>

#include <cstdio>

namespace orrery::lang::diagnostic {

double readLogTime(const char* text, interp::UtcOffset localOffset) {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, milliseconds = 0, zone = 0;
    if (std::sscanf(text, "%d-%d-%d %d:%d:%d%*[.,]%d %d", &year, &month, &day, &hour, &minute, &second, &milliseconds,
                    &zone) != 8)
        except::throwMessage(orrery::diagnostic::ids::XmlInvalidTimeFormat());
    // The zone is read as one number, so "-03-30" gives -3: zero hours, minus three minutes.
    const int zoneHours = zone / 100;
    const int zoneMinutes = zone - 100 * zoneHours;
    // Hours and minutes may leave their ranges here; the day number conversion absorbs them.
    return interp::datenumFromDatevec(year, month, day, static_cast<double>(hour) + localOffset.hours - zoneHours,
                                      static_cast<double>(minute) + localOffset.minutes - zoneMinutes,
                                      second + milliseconds / 1000.0);
}

}  // namespace orrery::lang::diagnostic
