// Tests of the issued-warning signal and its connection point.
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using orrery::lang::diagnostic::emitIssuedWarning;
using orrery::lang::diagnostic::hasIssuedWarningSlots;
using orrery::lang::diagnostic::Warning;

namespace {

Warning warningWithIdentifier(const std::string& identifier) {
    Warning warning;
    warning.setIdentifier(identifier);
    return warning;
}

}  // namespace

TEST(IssuedWarningSignal, CallsConnectedSlotsInConnectionOrderWithTheRecord) {
    std::vector<std::string> heard;
    const boost::signals2::scoped_connection first = builtins::connectIssuedWarningCallback(
        [&heard](const Warning& w) { heard.push_back("first " + w.getIdentifier()); });
    const boost::signals2::scoped_connection second = builtins::connectIssuedWarningCallback(
        [&heard](const Warning& w) { heard.push_back("second " + w.getIdentifier()); });
    emitIssuedWarning(warningWithIdentifier("a:b"));
    EXPECT_EQ(heard, (std::vector<std::string>{"first a:b", "second a:b"}));
}

TEST(IssuedWarningSignal, ADisconnectedSlotIsNoLongerCalled) {
    int calls = 0;
    boost::signals2::connection connection =
        builtins::connectIssuedWarningCallback([&calls](const Warning&) { ++calls; });
    emitIssuedWarning(Warning());
    connection.disconnect();
    emitIssuedWarning(Warning());
    EXPECT_EQ(calls, 1);
}

TEST(IssuedWarningSignal, TellsWhetherAnySlotIsConnected) {
    EXPECT_FALSE(hasIssuedWarningSlots());
    std::optional<boost::signals2::scoped_connection> connection =
        builtins::connectIssuedWarningCallback([](const Warning&) {});
    EXPECT_TRUE(hasIssuedWarningSlots());
    connection.reset();
    EXPECT_FALSE(hasIssuedWarningSlots());
}
