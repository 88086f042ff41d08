// The time text of a warning log element, read back.
#include "diagnostic/log/log_time_reading.hpp"

#include "diagnostic/log/xml_parser_ids.hpp"

#include <orrery/except/throw_message.hpp>

#include <charconv>
#include <climits>
#include <cstring>
#include <system_error>

namespace orrery::lang::diagnostic {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

void skipBlanks(const char*& p) {
    while (isBlank(*p)) ++p;
}

bool literal(const char*& p, char c) {
    if (*p != c) return false;
    ++p;
    return true;
}

// "%*[.,]": one or more points or commas.
bool separators(const char*& p) {
    if (*p != '.' && *p != ',') return false;
    while (*p == '.' || *p == ',') ++p;
    return true;
}

// "%d": blanks, an optional sign, one or more digits, read by std::from_chars. As
// the C library does, the number saturates at the limits of long and is then
// stored modulo 2^32.
bool number(const char*& p, const char* end, int& out) {
    skipBlanks(p);
    const char* digits = *p == '+' ? p + 1 : p;
    const char* first = *digits == '-' && digits == p ? digits + 1 : digits;
    if (!isDigit(*first)) return false;
    long value = 0;
    const auto [stop, error] = std::from_chars(digits, end, value);
    if (error == std::errc::result_out_of_range) value = *digits == '-' ? LONG_MIN : LONG_MAX;
    p = stop;
    out = static_cast<int>(value);
    return true;
}

}  // namespace

bool scanLogTime(const char* p, LogTimeFields& f) {
    const char* end = p + std::strlen(p);
    const auto read = [&](int& field) { return number(p, end, field); };
    if (!read(f[0]) || !literal(p, '-') || !read(f[1]) || !literal(p, '-') || !read(f[2])) return false;
    skipBlanks(p);
    if (!read(f[3]) || !literal(p, ':') || !read(f[4]) || !literal(p, ':') || !read(f[5])) return false;
    if (!separators(p) || !read(f[6])) return false;
    skipBlanks(p);
    return read(f[7]);
}

double readLogTime(const char* text, interp::UtcOffset localOffset) {
    LogTimeFields f{};
    if (!scanLogTime(text, f)) except::throwMessage(orrery::diagnostic::ids::XmlInvalidTimeFormat());
    const auto [year, month, day, hour, minute, second, milliseconds, zone] = f;
    // The zone is read as one number, so "-03-30" gives -3: zero hours, minus three minutes.
    const int zoneHours = zone / 100;
    const int zoneMinutes = zone - 100 * zoneHours;
    // Hours and minutes may leave their ranges here; the day number conversion absorbs them.
    return interp::datenumFromDatevec(year, month, day, static_cast<double>(hour) + localOffset.hours - zoneHours,
                                      static_cast<double>(minute) + localOffset.minutes - zoneMinutes,
                                      second + milliseconds / 1000.0);
}

}  // namespace orrery::lang::diagnostic
