// Tests of the forms of date text besides the log's (which the log's tests compare
// with the C format): ISO 8601 with the offset, and whole seconds.
#include <orrery/interp/date_text.hpp>

#include <gtest/gtest.h>

using namespace orrery::interp;

TEST(DateText, WritesEachFormWithItsOffsetAndRounding) {
    const double afternoon = datenumFromDatevec(2026, 3, 4, 10, 7, 30.25);
    // 59.9996 seconds round to the millisecond first, which carries into the next year.
    const double lastInstant = datenumFromDatevec(2023, 12, 31, 23, 59, 59.9996);
    const double early = datenumFromDatevec(5, 1, 2, 3, 4, 5.999);
    struct Case {
        double serial;
        DateTextForm form;
        UtcOffset offset;
        const char* text;
    };
    const Case cases[] = {
        {afternoon, DateTextForm::Iso8601, {1, 0}, "2026-03-04T10:07:30.250+01:00"},
        {afternoon, DateTextForm::Iso8601, {-3, -30}, "2026-03-04T10:07:30.250-03:30"},
        {afternoon, DateTextForm::Iso8601, {0, -30}, "2026-03-04T10:07:30.250-00:30"},
        {lastInstant, DateTextForm::Iso8601, {0, 0}, "2024-01-01T00:00:00.000+00:00"},
        {early, DateTextForm::Iso8601, {14, 45}, "0005-01-02T03:04:05.999+14:45"},
        {afternoon, DateTextForm::WholeSeconds, {-3, -30}, "2026-03-04 10:07:30"},
        {lastInstant, DateTextForm::WholeSeconds, {}, "2024-01-01 00:00:00"},
        {early, DateTextForm::WholeSeconds, {}, "0005-01-02 03:04:05"},
        {afternoon, DateTextForm::LogTime, {-3, -30}, "2026-03-04 10:07:30.250 -03-30"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(dateText(c.serial, c.form, c.offset), c.text);
        std::string appended = "x";
        appendDateText(appended, c.serial, c.form, c.offset);
        EXPECT_EQ(appended, std::string("x") + c.text);
    }
}
