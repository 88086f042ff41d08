// Counting logged warnings per identifier and printing the counts.
#include "shell/startup/log_summary.hpp"

#include <orrery/interp/dates.hpp>

#include <gtest/gtest.h>

using namespace orrery::shell::startup;

TEST(LogSummary, PutsTheMostFrequentFirstThenIdentifiersInOrder) {
    std::vector<IdentifierSummary> summary = {
        {"c:x", 1, 0, 0, 0, {}}, {"b:x", 2, 0, 0, 0, {}}, {"a:x", 2, 0, 0, 0, {}}, {"d:x", 5, 0, 0, 0, {}}};
    orderSummary(summary);
    std::vector<std::string> order;
    for (const auto& entry : summary) order.push_back(entry.identifier);
    EXPECT_EQ(order, (std::vector<std::string>{"d:x", "a:x", "b:x", "c:x"}));
}

TEST(LogSummary, DrawsEachTimelineScaledToItsLargestPart) {
    EXPECT_EQ(timelineBlocks({0, 1, 2, 8, 4}), " \u2581\u2582\u2588\u2584");
    EXPECT_EQ(timelineBlocks({3}), "\u2588");
    EXPECT_EQ(timelineBlocks({0, 0}), "  ");
    EXPECT_EQ(timelineBlocks({}), "");
}

TEST(LogSummary, QuotesWhatTheFormatsNeedQuoted) {
    // No identifier read from a log holds these characters; the formats must still stay well formed.
    const double day = orrery::interp::datenumFromDatevec(2026, 3, 4, 8, 0, 0.25);
    const std::vector<IdentifierSummary> summary = {{"a,\"b\"\n\\", 2, 1, day, day, {2, 0}}};
    const std::string csv = renderSummary(summary, SummaryFormat::Csv);
    EXPECT_NE(csv.find("\n\"a,\"\"b\"\"\n\\\",2,1,2026-03-04T08:00:00.250"), std::string::npos) << csv;
    const std::string json = renderSummary(summary, SummaryFormat::Json);
    EXPECT_NE(json.find(R"({"identifier": "a,\"b\"\n\\", "count": 2, "disabled": 1)"), std::string::npos) << json;
    EXPECT_NE(json.find(R"("timeline": [2, 0]})"), std::string::npos) << json;
    EXPECT_EQ(renderSummary({}, SummaryFormat::Json), "[]\n");
}
