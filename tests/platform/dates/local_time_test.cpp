// Tests of the local offset from UTC and of the current local time, under several zones.
#include <orrery/interp/dates.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

using namespace orrery::interp;

namespace {

/// Lets each test select zones, and gives the process its own zone back afterwards.
class LocalTime : public testing::Test {
protected:
    static void useZone(const char* zone) {
        if (zone != nullptr)
            ::setenv("TZ", zone, 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }
    void TearDown() override { useZone(previous_ ? previous_->c_str() : nullptr); }

private:
    const char* given_ = std::getenv("TZ");
    std::optional<std::string> previous_ = given_ ? std::optional<std::string>(given_) : std::nullopt;
};

constexpr std::time_t midJanuary2024 = 1705320000;  // 2024-01-15 12:00 UTC
constexpr std::time_t midJuly2024 = 1719835200;     // 2024-07-01 12:00 UTC

}  // namespace

TEST_F(LocalTime, UtcOffsetIsTheStandardOneAllYearAndNowIsTheLocalWallClock) {
    struct Case {
        const char* zone;
        std::time_t when;
        UtcOffset expected;
    };
    // Summer time is in force at the northern zones in July and at Chatham in January.
    const Case cases[] = {
        {"America/New_York", midJuly2024, {-5, 0}},
        {"America/St_Johns", midJuly2024, {-3, -30}},
        {"Europe/Berlin", midJuly2024, {1, 0}},
        {"Pacific/Chatham", midJanuary2024, {12, 45}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.zone << " at " << c.when);
        useZone(c.zone);
        EXPECT_EQ(localUtcOffsetAt(c.when), c.expected);
    }
    // Now is the local wall clock (serial day 719529 is 1970-01-01).
    useZone("EST5");
    const double utcNow = 719529 + static_cast<double>(std::time(nullptr)) / 86400;
    EXPECT_NEAR(nowSerial(), utcNow - 5.0 / 24, 2.0 / 86400);
    EXPECT_EQ(localUtcOffset(), (UtcOffset{-5, 0}));
}
