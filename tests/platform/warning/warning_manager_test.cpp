// Tests of the warning manager: the identifier rule, states and modes, the last
// warning, the log slot and the callback.
#include "warning_fixture.hpp"

#include <malloc.h>

#include <string>
#include <utility>
#include <vector>

using namespace orrery::warning;
using orrery::warning::testing::MockLog;
using WarningManager = orrery::warning::testing::WarningTest;

TEST(WarningIdentifier, FollowsTheIdentifierRule) {
    const std::pair<const char*, bool> cases[] = {
        {"a:b", true},   {"ORRERY:demo:x", true}, {"a-b:c", true}, {"A1_:b2-", true},        {"", false},
        {"a", false},    {"a:", false},           {":b", false},   {"a::b", false},          {"a b:c", false},
        {"1a:b", false}, {"a:1b", false},         {"a:b:", false}, {"caf\xC3\xA9:x", false},
    };
    for (const auto& [id, valid] : cases) EXPECT_EQ(utIsValidMessageIdentifier(id), valid) << id;
}

namespace {

std::vector<std::pair<std::string, WarningState>> statesInOrder(WarningManagerContext* context) {
    std::vector<std::pair<std::string, WarningState>> states;
    utIterateOverWarningStatuses(context,
                                 [&](const std::string& id, WarningState state) { states.emplace_back(id, state); });
    return states;
}

}  // namespace

TEST_F(WarningManager, StatesFallBackToTheDefaultAndKeepTheOrderOfFirstSetting) {
    // A new context has every warning on, and of the modes only backtrace.
    EXPECT_EQ(utGetWarningStatus(context, "x:y"), WarningState::On);
    EXPECT_FALSE(utIsWarningModeOn(context, WarningMode::Debug));
    EXPECT_TRUE(utIsWarningModeOn(context, WarningMode::Backtrace));
    EXPECT_FALSE(utIsWarningModeOn(context, WarningMode::Verbose));
    utSetWarningStatus(context, "z:z", WarningState::Off);
    utSetWarningStatus(context, "a:a", WarningState::Off);
    utSetWarningStatus(context, "A:A", WarningState::On);     // identifiers keep their case
    utSetWarningStatus(context, "a:a", WarningState::Error);  // keeps its place
    EXPECT_EQ(utGetWarningStatus(context, "x:y"), WarningState::On);
    EXPECT_EQ(utGetWarningStatus(context, "a:a"), WarningState::Error);
    EXPECT_EQ(utGetWarningStatus(context, "A:A"), WarningState::On);
    using States = std::vector<std::pair<std::string, WarningState>>;
    EXPECT_EQ(statesInOrder(context),
              (States{{"z:z", WarningState::Off}, {"a:a", WarningState::Error}, {"A:A", WarningState::On}}));
    EXPECT_EQ(utCountWarningsInWarningManager(context), 3u);
}

TEST_F(WarningManager, SettingAllRemovesEveryOwnStateAndStartsTheOrderAnew) {
    constexpr WarningState kStates[] = {WarningState::Off, WarningState::On, WarningState::Error};
    constexpr const char* kSpellings[] = {"all", "All", "ALL"};  // indexed by the new default
    for (const WarningState own : kStates)
        for (const WarningState all : kStates) {
            SCOPED_TRACE(::testing::Message() << "own " << static_cast<int>(own) << ", all " << static_cast<int>(all));
            utSetWarningStatus(context, "b:b", own);
            utSetWarningStatus(context, "a:a", own);
            utSetWarningStatus(context, kSpellings[static_cast<int>(all)], all);
            EXPECT_EQ(utCountWarningsInWarningManager(context), 0u);
            EXPECT_TRUE(statesInOrder(context).empty());
            EXPECT_EQ(utGetWarningStatus(context, "b:b"), all);
            utSetWarningStatus(context, "a:a", own);
            utSetWarningStatus(context, "b:b", own);
            EXPECT_EQ(statesInOrder(context).front().first, "a:a") << "the first set after the reset comes first";
            utSetWarningStatus(context, "all", WarningState::On);
        }
}

TEST_F(WarningManager, ManyStatesAreFoundAndVisitedInTheOrderOfFirstSetting) {
    // Enough identifiers for the table to grow many times over.
    constexpr int kCount = 5000;
    const auto identifier = [](int i) { return "id:n" + std::to_string((i * 7919) % kCount); };
    const auto stateOf = [](int i) { return static_cast<WarningState>(i % 3); };
    for (int i = 0; i < kCount; ++i) utSetWarningStatus(context, identifier(i), WarningState::Error);
    for (int i = kCount - 1; i >= 0; --i) utSetWarningStatus(context, identifier(i), stateOf(i));
    EXPECT_EQ(utCountWarningsInWarningManager(context), static_cast<std::size_t>(kCount));
    const auto states = statesInOrder(context);
    ASSERT_EQ(states.size(), static_cast<std::size_t>(kCount));
    for (int i = 0; i < kCount; ++i) {
        ASSERT_EQ(states[static_cast<std::size_t>(i)], std::make_pair(identifier(i), stateOf(i))) << i;
        ASSERT_EQ(utGetWarningStatus(context, identifier(i)), stateOf(i)) << i;
    }
    EXPECT_EQ(utGetWarningStatus(context, "id:n"), WarningState::On) << "a prefix is another identifier";
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

namespace {

// Destroy functions that record which of them destroyed which log.
std::vector<std::pair<int, utWarningLog*>> destroyed;
void destroyFirst(utWarningLog* log) {
    destroyed.emplace_back(1, log);
    delete log;
}
void destroySecond(utWarningLog* log) {
    destroyed.emplace_back(2, log);
    delete log;
}

// A log that registers a warning filter, as the module's log does.
class FilteringLog : public MockLog {
public:
    orrery::warning::WarningFilter filter{[](std::u16string&) { return false; }};
};

}  // namespace

TEST_F(WarningManager, LogSlotDestroysItsLogThroughTheDestroyFunctionOfItsTime) {
    destroyed.clear();
    utSetWarningLogDestroyFcn(&destroyFirst);
    utWarningLog* const first = new MockLog();
    utSetWarningLog(context, first);
    utSetWarningLogDestroyFcn(&destroySecond);
    utSetWarningLog(context, first);
    EXPECT_TRUE(destroyed.empty()) << "setting the same log again keeps it";
    utWarningLog* const second = new MockLog();
    utSetWarningLog(context, second);
    EXPECT_EQ(utGetWarningLog(context), second);
    utSetWarningLogDestroyFcn(nullptr);
    utSetWarningLog(context, nullptr);
    EXPECT_EQ(utGetWarningLog(context), nullptr);
    using Destroyed = std::vector<std::pair<int, utWarningLog*>>;
    EXPECT_EQ(destroyed, (Destroyed{{1, first}, {2, second}}));

    // A log set while no destroy function is installed stays its owner's.
    MockLog owned;
    utSetWarningLog(context, &owned);
    freshContext();
    EXPECT_EQ(destroyed.size(), 2u);
}

TEST_F(WarningManager, MachineDestroysItsLogWhileItsFiltersStillExist) {
    destroyed.clear();
    utSetWarningLogDestroyFcn(&destroyFirst);
    utWarningLog* log = nullptr;
    {
        const orrery::interp::VirtualMachineScope inner;
        log = new FilteringLog();
        utSetWarningLog(utGetWarningManagerContext(), log);
    }  // the log's filter leaves the inner machine while this test's machine is current
    utSetWarningLogDestroyFcn(nullptr);
    EXPECT_EQ(destroyed, (std::vector<std::pair<int, utWarningLog*>>{{1, log}}));
    EXPECT_FALSE(issueWarningWithoutLogging(context, "a:b", u"shown"));
    EXPECT_EQ(takePrinted(), "Warning: shown\n") << "the inner machine's filter never applied here";
}

TEST_F(WarningManager, SettingAllGivesBackTheMemoryOfTheStates) {
#ifdef ORRERY_ADDRESS_SANITIZER
    GTEST_SKIP() << "the sanitizer's allocator keeps the C library's heap figures still";
#else
    // Blocks in the heap's arenas and those mapped on their own (the large ones).
    const auto heapInUse = [] {
        const struct mallinfo2 heap = mallinfo2();
        return static_cast<long long>(heap.uordblks + heap.hblkhd);
    };
    const long long before = heapInUse();
    for (int i = 0; i < 20'000; ++i) utSetWarningStatus(context, "id:n" + std::to_string(i), WarningState::Off);
    EXPECT_GT(heapInUse() - before, 1'000'000) << "each state takes room";
    utSetWarningStatus(context, "all", WarningState::Off);
    // What stays is the empty table's own, however many states it held.
    EXPECT_LT(heapInUse() - before, 16'384);
#endif
}
