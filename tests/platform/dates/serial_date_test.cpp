// Tests of the conversions between serial day numbers and date vectors.
#include "tests/support/expect_error.hpp"

#include <orrery/interp/dates.hpp>

#include <limits>
#include <ostream>

using namespace orrery::interp;

namespace orrery::interp {
void PrintTo(const DateVector& d, std::ostream* out) {
    *out << d.year << "-" << d.month << "-" << d.day << " " << d.hour << ":" << d.minute << ":" << d.seconds;
}
}  // namespace orrery::interp

static double serialOf(double y, double mo, double d, double h = 0, double mi = 0, double s = 0) {
    return datenumFromDatevec(y, mo, d, h, mi, s);
}

// Reference day numbers computed independently from proleptic Gregorian ordinals.
TEST(SerialDate, KnownDaysHaveTheirReferenceNumbers) {
    struct Case {
        int year, month, day;
        double serial;
    };
    const Case cases[] = {
        {0, 1, 1, 1},         {0, 12, 31, 366},      {1, 1, 1, 367},       {-1, 12, 31, 0},
        {-1, 1, 1, -364},     {1600, 2, 29, 584448}, {1900, 3, 1, 694021}, {1970, 1, 1, 719529},
        {2000, 1, 1, 730486}, {2024, 2, 29, 739311}, {2024, 3, 1, 739312}, {9999, 12, 31, 3652425},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.year << "-" << c.month << "-" << c.day);
        EXPECT_EQ(serialOf(c.year, c.month, c.day), c.serial);
        EXPECT_EQ(calcDatevec(c.serial), (DateVector{double(c.year), double(c.month), double(c.day), 0, 0, 0}));
    }
}

TEST(SerialDate, PartsOutsideTheirRangesAreAbsorbed) {
    struct Case {
        DateVector given;
        DateVector same;
    };
    const Case cases[] = {
        {{2024, 13, 1, 0, 0, 0}, {2025, 1, 1, 0, 0, 0}},        {{2024, 0, 1, 0, 0, 0}, {2023, 12, 1, 0, 0, 0}},
        {{2024, -1, 15, 0, 0, 0}, {2023, 11, 15, 0, 0, 0}},     {{2024, 3, 0, 0, 0, 0}, {2024, 2, 29, 0, 0, 0}},
        {{2023, 3, 0, 0, 0, 0}, {2023, 2, 28, 0, 0, 0}},        {{2024, 1, 32, 0, 0, 0}, {2024, 2, 1, 0, 0, 0}},
        {{2024, 3, 1, 0, -30, 0}, {2024, 2, 29, 23, 30, 0}},    {{2024, 1, 1, 0, 0, -1}, {2023, 12, 31, 23, 59, 59}},
        {{2024.7, 3.9, 1.75, 0, 0, 0}, {2024, 3, 1, 18, 0, 0}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.given));
        EXPECT_DOUBLE_EQ(datenumFromDatevec(c.given), datenumFromDatevec(c.same));
        EXPECT_EQ(calcDatevec(datenumFromDatevec(c.given)), c.same);
    }
}

TEST(SerialDate, MillisecondsSurviveARoundTripAcrossYearsAndLeapDays) {
    for (int year = -800; year <= 9999; year += 97) {
        const double lastOfFebruary = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
        for (double ms : {0, 1, 250, 499, 500, 999}) {
            SCOPED_TRACE(testing::Message() << year << " +" << ms << " ms");
            const DateVector date{
                double(year),       2, lastOfFebruary, double((year + 800) % 24), double((year + 800) % 60),
                (59000 + ms) / 1000};
            EXPECT_EQ(calcDatevec(datenumFromDatevec(date)), date);
        }
    }
}

TEST(SerialDate, FractionIsTheTimeOfDayRoundedToMilliseconds) {
    EXPECT_EQ(serialOf(2000, 1, 1, 6), 730486.25);
    EXPECT_EQ(calcDatevec(730486.75), (DateVector{2000, 1, 1, 18, 0, 0}));
    EXPECT_EQ(calcDatevec(-0.25), (DateVector{-1, 12, 30, 18, 0, 0}));
    EXPECT_EQ(calcDatevec(serialOf(2023, 12, 31, 23, 59, 59.9996)), (DateVector{2024, 1, 1, 0, 0, 0}));
    EXPECT_EQ(calcDatevec(serialOf(2024, 3, 5, 14, 7, 9.2504)), (DateVector{2024, 3, 5, 14, 7, 9.25}));
    // Finer precision keeps the fraction below the millisecond, up to the number's resolution.
    EXPECT_NEAR(calcDatevec(serialOf(2024, 3, 5, 14, 7, 9.2504), 3).seconds, 9.2504, 2e-5);
}

TEST(SerialDate, NonFiniteInputsAndDatesBeyondTheCalendarAreRefused) {
    const double inf = std::numeric_limits<double>::infinity();
    for (double value : {std::numeric_limits<double>::quiet_NaN(), inf, -inf}) {
        SCOPED_TRACE(value);
        EXPECT_MSGID_TEXT(calcDatevec(value), "ORRERY:dates:notFinite",
                          "Dates need finite numbers; NaN and Inf have no date.");
        EXPECT_MSGID(serialOf(value, 1, 1), "ORRERY:dates:notFinite");
        EXPECT_MSGID(serialOf(2024, 1, 1, 0, 0, value), "ORRERY:dates:notFinite");
    }
    for (double value : {1e300, -1e300, serialOf(32767, 12, 31) + 1, serialOf(-32767, 1, 1) - 0.5}) {
        SCOPED_TRACE(value);
        EXPECT_MSGID(calcDatevec(value), "ORRERY:dates:outOfRange");
    }
    // The last millisecond of the range must not round into the year after it.
    EXPECT_MSGID(calcDatevec(serialOf(32767, 12, 31, 23, 59, 59.99999)), "ORRERY:dates:outOfRange");
    EXPECT_MSGID(serialOf(32768, 1, 1), "ORRERY:dates:outOfRange");
    EXPECT_MSGID(serialOf(32767, 13, 1), "ORRERY:dates:outOfRange");
    EXPECT_MSGID(serialOf(1e18, 1, 1), "ORRERY:dates:outOfRange");
    EXPECT_MSGID(serialOf(2024, -1e18, 1), "ORRERY:dates:outOfRange");
    EXPECT_EQ(calcDatevec(serialOf(-32767, 1, 1)).year, -32767);
}
