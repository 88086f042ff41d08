// Tests of the local offset from UTC and of the current local time, under several zones.
#include <orrery/interp/dates.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

using orrery::interp::localUtcOffset;
using orrery::interp::localUtcOffsetAt;
using orrery::interp::nowSerial;
using orrery::interp::UtcOffset;

namespace {

/// Sets the process's time zone for the guard's lifetime and restores it after.
class TimeZone {
public:
    explicit TimeZone(const char* zone) {
        if (const char* old = std::getenv("TZ")) previous_ = old;
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
    ~TimeZone() {
        if (previous_) ::setenv("TZ", previous_->c_str(), 1);
        else ::unsetenv("TZ");
        ::tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    std::optional<std::string> previous_;
};

constexpr std::time_t midJanuary2024 = 1705320000;  // 2024-01-15 12:00 UTC
constexpr std::time_t midJuly2024 = 1719835200;     // 2024-07-01 12:00 UTC

}  // namespace

TEST(LocalUtcOffset, IsTheStandardOffsetOfTheZoneAllYear) {
    struct Case { const char* zone; std::time_t when; UtcOffset expected; };
    const Case cases[] = {
        {"UTC", midJuly2024, {0, 0}},
        {"EST5", midJanuary2024, {-5, 0}},
        {"America/New_York", midJuly2024, {-5, 0}},
        {"America/St_Johns", midJanuary2024, {-3, -30}},
        {"America/St_Johns", midJuly2024, {-3, -30}},
        {"Europe/Berlin", midJanuary2024, {1, 0}},
        {"Europe/Berlin", midJuly2024, {1, 0}},
        {"Asia/Kolkata", midJuly2024, {5, 30}},
        {"Pacific/Chatham", midJanuary2024, {12, 45}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.zone << " at " << c.when);
        const TimeZone zone(c.zone);
        const UtcOffset offset = localUtcOffsetAt(c.when);
        EXPECT_EQ(offset.hours, c.expected.hours);
        EXPECT_EQ(offset.minutes, c.expected.minutes);
    }
}

TEST(LocalUtcOffset, NowUsesTheCurrentZone) {
    const TimeZone zone("EST5");
    EXPECT_EQ(localUtcOffset(), (UtcOffset{-5, 0}));
}

TEST(NowSerial, IsTheLocalWallClock) {
    constexpr double unixEpochSerial = 719529;
    const auto expectedUtc = [] { return unixEpochSerial + static_cast<double>(std::time(nullptr)) / 86400; };
    constexpr double twoSeconds = 2.0 / 86400;
    {
        const TimeZone zone("UTC");
        EXPECT_NEAR(nowSerial(), expectedUtc(), twoSeconds);
    }
    {
        const TimeZone zone("EST5");
        EXPECT_NEAR(nowSerial(), expectedUtc() - 5.0 / 24, twoSeconds);
    }
}
