// Tests of the time text of a warning log under several time zones.
#include "diagnostic/log/log_time_text.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

#include <orrery/interp/dates.hpp>

#include <gtest/gtest.h>

#include <cstdio>
#include <ctime>
#include <string>

using orrery::interp::datenumFromDatevec;
using orrery::lang::diagnostic::logTimeText;

namespace {

bool daylightSavingNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local.tm_isdst > 0;
}

}  // namespace

TEST(LogTimeText, EndsInTheZonesStandardOffsetNowWithHoursAndMinutesSignedApart) {
    struct Case {
        const char* zone;
        const char16_t* text;
    };
    // The last zone has Berlin's rules with summer time all year: the standard
    // offset is written while summer time is in force.
    const Case cases[] = {
        {"UTC", u"2024-03-05 14:07:09.250 +0000"},
        {"America/New_York", u"2024-03-05 14:07:09.250 -0500"},
        {"Asia/Kolkata", u"2024-03-05 14:07:09.250 +0530"},
        {"America/St_Johns", u"2024-03-05 14:07:09.250 -03-30"},
        {"Europe/Berlin", u"2024-03-05 14:07:09.250 +0100"},
        {"CET-1CEST-2,J1/0,J365/25", u"2024-03-05 14:07:09.250 +0100"},
    };
    const double serial = datenumFromDatevec(2024, 3, 5, 14, 7, 9.25);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.zone);
        const orrery::test::ZoneScope zone(c.zone);
        EXPECT_EQ(logTimeText(serial), c.text);
    }
    const orrery::test::ZoneScope summer("CET-1CEST-2,J1/0,J365/25");
    EXPECT_TRUE(daylightSavingNow());
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
                              -400.75};
    const orrery::interp::UtcOffset offsets[] = {{0, 0}, {-3, -30}, {5, 30}, {-12, 0}, {14, 45}, {0, -30}};
    for (const double serial : serials) {
        const auto date = orrery::interp::calcDatevec(serial, 0);
        for (const auto& offset : offsets) {
            char expected[32];
            std::snprintf(expected, sizeof expected, "%04d-%02d-%02d %02d:%02d:%06.3f %+03d%02d",
                          static_cast<int>(date.year), static_cast<int>(date.month), static_cast<int>(date.day),
                          static_cast<int>(date.hour), static_cast<int>(date.minute), date.seconds, offset.hours,
                          offset.minutes);
            const std::string expectedText(expected);
            EXPECT_EQ(logTimeText(serial, offset), std::u16string(expectedText.begin(), expectedText.end()))
                << expected;
        }
    }
}
