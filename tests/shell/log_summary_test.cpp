// Counting logged warnings per identifier and printing the counts.
#include "shell/startup/log_summary.hpp"

#include <orrery/interp/dates.hpp>

#include <gtest/gtest.h>

using namespace orrery::shell::startup;

TEST(LogSummary, CountsPerIdentifierMostFrequentFirst) {
    const std::vector<LoggedWarning> warnings = {
        {"b:x", false, 5}, {"a:x", true, 9}, {"c:x", false, 1}, {"b:x", true, 3}, {"a:x", false, 7},
    };
    const auto summary = summariseWarnings(warnings);
    ASSERT_EQ(summary.size(), 3u);
    // a:x and b:x tie on count and keep identifier order; times are the earliest and latest, not file order
    EXPECT_EQ(summary[0].identifier, "a:x");
    EXPECT_EQ(summary[0].disabled, 1u);
    EXPECT_EQ(summary[0].first, 7);
    EXPECT_EQ(summary[0].last, 9);
    EXPECT_EQ(summary[1].identifier, "b:x");
    EXPECT_EQ(summary[1].first, 3);
    EXPECT_EQ(summary[2].identifier, "c:x");
    EXPECT_TRUE(summariseWarnings({}).empty());
}

TEST(LogSummary, QuotesWhatTheFormatsNeedQuoted) {
    // No identifier read from a log holds these characters; the formats must still stay well formed.
    const double day = orrery::interp::datenumFromDatevec(2026, 3, 4, 8, 0, 0.25);
    const std::vector<IdentifierSummary> summary = {{"a,\"b\"\n\\", 2, 1, day, day}};
    const std::string csv = renderSummary(summary, SummaryFormat::Csv);
    EXPECT_NE(csv.find("\n\"a,\"\"b\"\"\n\\\",2,1,2026-03-04T08:00:00.250"), std::string::npos) << csv;
    const std::string json = renderSummary(summary, SummaryFormat::Json);
    EXPECT_NE(json.find(R"({"identifier": "a,\"b\"\n\\", "count": 2, "disabled": 1)"), std::string::npos) << json;
    EXPECT_EQ(renderSummary({}, SummaryFormat::Json), "[]\n");
}
