// Tests of the time text scanner: it must read exactly what the C library's
// scanf reads with the log's time format.
#include "diagnostic/log/log_time_reading.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

using orrery::lang::diagnostic::LogTimeFields;
using orrery::lang::diagnostic::scanLogTime;

TEST(LogTimeReading, ScansAsTheCLibraryScansTheTimeFormat) {
    const char* const texts[] = {
        "2024-03-05 14:07:09.250 +0100",
        "2023-11-30 23:59:59,999 -0500",
        "2024-03-01 10:00:00.000 -03-30",
        "2024-03-01 10:00:00 +0100",
        "2024-03-01T10:00:00.000 +0100",
        "  2024 -03-01 10:00:00.000 +0100",
        "2024- 3-+1\t\n1:-2: 3.,.7+5",
        "2024-03-01 10:00:00.",
        "2024-03-01 10:00:00.5",
        "2024-03-01 10:00:00. 5 x",
        "2024-03-01 10:00:00.-5 -",
        "99999999999-4294967297-2147483648 -9999999999999999999999:0:0.0 0",
        "-9223372036854775808-1-1 0:0:0.0 -9223372036854775809",
        "2024--03-01 10:00:00.000 +0100",
        "",
        "soon",
        "+-1-1-1 1:1:1.1 1",
    };
    for (const char* text : texts) {
        SCOPED_TRACE(text);
        LogTimeFields expected{};
        const bool read = std::sscanf(text, "%d-%d-%d %d:%d:%d%*[.,]%d %d", &expected[0], &expected[1], &expected[2],
                                      &expected[3], &expected[4], &expected[5], &expected[6], &expected[7]) == 8;
        LogTimeFields fields{};
        EXPECT_EQ(scanLogTime(text, fields), read);
        if (read) {
            EXPECT_EQ(fields, expected);
        }
    }
}
