// Tests of the time text of a warning log: written under several time zones, and
// scanned exactly as the C library's scanf reads the log's time format.
#include "diagnostic/log/log_time_text.hpp"
#include "diagnostic/log/log_time_reading.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

#include <orrery/interp/dates.hpp>

#include <gtest/gtest.h>

#include <cstdio>
#include <ctime>
#include <string>

using orrery::interp::datenumFromDatevec;
using orrery::lang::diagnostic::LogTimeFields;
using orrery::lang::diagnostic::logTimeText;

TEST(LogTimeText, EndsInTheZonesStandardOffsetNowWithHoursAndMinutesSignedApart) {
    // The last zone has Berlin's rules with summer time all year: the standard
    // offset is written while summer time is in force.
    const std::pair<const char*, const char*> cases[] = {
        {"UTC", "2024-03-05 14:07:09.250 +0000"},
        {"America/New_York", "2024-03-05 14:07:09.250 -0500"},
        {"Asia/Kolkata", "2024-03-05 14:07:09.250 +0530"},
        {"America/St_Johns", "2024-03-05 14:07:09.250 -03-30"},
        {"CET-1CEST-2,J1/0,J365/25", "2024-03-05 14:07:09.250 +0100"},
    };
    const double serial = datenumFromDatevec(2024, 3, 5, 14, 7, 9.25);
    for (const auto& [zone, text] : cases) {
        SCOPED_TRACE(zone);
        const orrery::test::ZoneScope scope(zone);
        EXPECT_EQ(logTimeText(serial), text);
    }
    const orrery::test::ZoneScope summer(cases[4].first);
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    EXPECT_GT(local.tm_isdst, 0) << "the last zone is in summer time";
}

TEST(LogTimeReading, ScansAsTheCLibraryScansTheTimeFormat) {
    for (const char* text :
         {"2024-03-05 14:07:09.250 +0100", "2024-03-01 10:00:00.000 -03-30", "2024-03-01 10:00:00 +0100",
          "2024-03-01T10:00:00.000 +0100", "2024- 3-+1\t\n1:-2: 3.,.7+5", "2024-03-01 10:00:00.-5 -",
          "99999999999-4294967297-2147483648 -9999999999999999999999:0:0.0 0", "2024--03-01 10:00:00.000 +0100", "",
          "+-1-1-1 1:1:1.1 1", "+2024-+3--1 +10:-0:+0,+1 -+1", " -0-0-0 0:0:0,0 -0", "1-1-1 1:1:1.1 +"}) {
        SCOPED_TRACE(text);
        LogTimeFields expected{};
        const bool read = std::sscanf(text, "%d-%d-%d %d:%d:%d%*[.,]%d %d", &expected[0], &expected[1], &expected[2],
                                      &expected[3], &expected[4], &expected[5], &expected[6], &expected[7]) == 8;
        LogTimeFields fields{};
        EXPECT_EQ(orrery::lang::diagnostic::scanLogTime(text, fields), read);
        if (read) {
            EXPECT_EQ(fields, expected);
        }
    }
}

// The time text is printed field by field; it must equal what the C format
// "%04d-%02d-%02d %02d:%02d:%06.3f %+03d%02d" gives for the same parts.
TEST(LogTimeText, EqualsTheCFormatOverAwkwardTimesAndOffsets) {
    const double serials[] = {datenumFromDatevec(2024, 3, 5, 14, 7, 9.25),
                              datenumFromDatevec(2023, 12, 31, 23, 59, 59.9996),
                              datenumFromDatevec(5, 1, 1, 0, 0, 0.0005),
                              datenumFromDatevec(12345, 6, 7, 8, 9, 10.5),
                              1.0,
                              0.0,
                              -400.75,
                              datenumFromDatevec(-32767, 1, 1, 0, 0, 0.125)};
    // {-12, -30} with a year of five digits and a sign fills the C buffer: the text is cut.
    const orrery::interp::UtcOffset offsets[] = {{0, 0}, {-3, -30}, {5, 30}, {-12, 0}, {14, 45}, {0, -30}, {-12, -30}};
    for (const double serial : serials) {
        const auto date = orrery::interp::calcDatevec(serial, 0);
        for (const auto& offset : offsets) {
            char expected[32];
            std::snprintf(expected, sizeof expected, "%04d-%02d-%02d %02d:%02d:%06.3f %+03d%02d",
                          static_cast<int>(date.year), static_cast<int>(date.month), static_cast<int>(date.day),
                          static_cast<int>(date.hour), static_cast<int>(date.minute), date.seconds, offset.hours,
                          offset.minutes);
            EXPECT_EQ(logTimeText(serial, offset), expected);
        }
    }
}
