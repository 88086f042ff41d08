// Tests of the warning manager: the identifier rule, states and modes, the last
// warning, the log slot and the callback.
#include "warning_fixture.hpp"

using namespace orrery::warning;
using orrery::warning::testing::MockLog;
using WarningManager = orrery::warning::testing::WarningTest;

TEST(WarningIdentifier, FollowsTheIdentifierRule) {
    const std::pair<const char*, bool> cases[] = {
        {"a:b", true}, {"ORRERY:demo:x", true}, {"a-b:c", true}, {"A1_:b2-", true}, {"", false}, {"a", false},
        {"a:", false}, {":b", false}, {"a::b", false}, {"a b:c", false}, {"1a:b", false}, {"a:1b", false},
        {"a:b:", false}, {"caf\xC3\xA9:x", false},
    };
    for (const auto& [id, valid] : cases) EXPECT_EQ(utIsValidMessageIdentifier(id), valid) << id;
}

TEST_F(WarningManager, StatesFallBackToTheDefaultAndKeepInsertionOrder) {
    // A new context has every warning on, and of the modes only backtrace.
    EXPECT_EQ(utGetWarningStatus(context, "x:y"), kWarningOn);
    EXPECT_FALSE(utIsWarningModeOn(context, kModeDebug));
    EXPECT_TRUE(utIsWarningModeOn(context, kModeBacktrace));
    EXPECT_FALSE(utIsWarningModeOn(context, kModeVerbose));
    utSetWarningStatus(context, "z:z", kWarningOff);
    utSetWarningStatus(context, "a:a", kWarningOff);
    utSetWarningStatus(context, "a:a", kWarningError);
    utSetWarningStatus(context, "All", kWarningOff);
    utSetWarningStatus(context, "A:A", kWarningOn);  // identifiers keep their case
    EXPECT_EQ(utGetWarningStatus(context, "x:y"), kWarningOff);
    EXPECT_EQ(utGetWarningStatus(context, "a:a"), kWarningError);
    EXPECT_EQ(utGetWarningStatus(context, "A:A"), kWarningOn);
    std::vector<std::string> order;
    utIterateOverWarningStatuses(context, [&](const std::string& id, int) { order.push_back(id); });
    EXPECT_EQ(order, (std::vector<std::string>{"z:z", "a:a", "A:A"}));
    EXPECT_EQ(utCountWarningsInWarningManager(context), 3u);
}

TEST_F(WarningManager, KeepsTheLastWarningAndCallsTheRegisteredCallbackUntilRemoved) {
    std::u16string message = u"stale";
    std::string identifier = "stale:id";
    utGetLastWarningMsg(context, message, identifier);
    EXPECT_TRUE(message.empty() && identifier.empty());
    utSetLastWarningMsg(context, "a:b", u"caf\u00e9 5");
    utGetLastWarningMsg(context, message, identifier);
    EXPECT_TRUE(message == u"caf\u00e9 5" && identifier == "a:b");
    EXPECT_EQ(utGetLastPrintedWarningId(context), "") << "the last printed identifier is separate";

    // The registered callback is called until it is removed.
    int calls = 0;
    utCallRegisteredWarningCallback(context);  // none registered yet
    utRegisterWarningCallback(context, [&] { ++calls; });
    utCallRegisteredWarningCallback(context);
    utCallRegisteredWarningCallback(nullptr);
    utRegisterWarningCallback(context, {});
    utCallRegisteredWarningCallback(context);
    EXPECT_EQ(calls, 1);
}

TEST_F(WarningManager, ContextDestroysItsLogThroughTheDestroyFunctionOnly) {
    static std::vector<utWarningLog*> destroyed;
    utSetWarningLogDestroyFcn([](utWarningLog* log) { destroyed.push_back(log); delete log; });
    utWarningLog* log = new MockLog();
    utSetWarningLog(context, log);
    utSetWarningManagerContextPresent(false);
    EXPECT_EQ(destroyed, std::vector<utWarningLog*>{log});
    // Without a destroy function the context leaves its log alone.
    MockLog owned;
    freshContext();
    utSetWarningLog(context, &owned);
    freshContext();
    EXPECT_EQ(destroyed.size(), 1u);
}

