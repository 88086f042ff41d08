// Tests of the warning manager's last warning, log slot, log functions, callback
// and state count (states and modes are covered with the services).
#include "warning_fixture.hpp"

using namespace orrery;
using namespace orrery::warning;
using WarningManager = warning::testing::WarningTest;

namespace {

std::vector<utWarningLog*> destroyed;

utWarningLog* makeRecordingLog() { return new warning::testing::RecordingLog(); }

void destroyAndRecord(utWarningLog* log) {
    destroyed.push_back(log);
    delete log;
}

}  // namespace

TEST_F(WarningManager, LastWarningKeepsMessageAndIdentifierTogether) {
    std::u16string message = u"stale";
    std::string identifier = "stale:id";
    utGetLastWarningMsg(context, message, identifier);
    EXPECT_EQ(message, u"");
    EXPECT_EQ(identifier, "");

    utSetLastWarningMsg(context, "a:b", u"caf\u00e9 5");
    utGetLastWarningMsg(context, message, identifier);
    EXPECT_EQ(message, u"caf\u00e9 5");
    EXPECT_EQ(identifier, "a:b");
    EXPECT_EQ(utGetLastPrintedWarningId(context), "") << "the last printed identifier is separate";
}

TEST_F(WarningManager, ContextDestroysItsLogThroughTheDestroyFunction) {
    destroyed.clear();
    EXPECT_EQ(utGetWarningLog(context), nullptr);
    utSetWarningLogFactoryFcn(makeRecordingLog);
    utSetWarningLogDestroyFcn(destroyAndRecord);
    EXPECT_EQ(utGetWarningLogFactoryFcn(), &makeRecordingLog);
    EXPECT_EQ(utGetWarningLogDestroyFcn(), &destroyAndRecord);

    utWarningLog* log = utGetWarningLogFactoryFcn()();
    utSetWarningLog(context, log);
    EXPECT_EQ(utGetWarningLog(context), log);
    utSetWarningManagerContextPresent(false);
    EXPECT_EQ(utGetWarningManagerContext(), nullptr);
    EXPECT_EQ(destroyed, std::vector<utWarningLog*>{log});

    // Without a destroy function the context leaves its log alone.
    warning::testing::RecordingLog owned;
    utSetWarningManagerContextPresent(true);
    utSetWarningLog(utGetWarningManagerContext(), &owned);
    utSetWarningLogDestroyFcn(nullptr);
    utSetWarningManagerContextPresent(false);
    EXPECT_EQ(destroyed.size(), 1u);
    freshContext();
}

TEST_F(WarningManager, RegisteredCallbackIsCalledUntilRemoved) {
    int calls = 0;
    utCallRegisteredWarningCallback(context);
    utRegisterWarningCallback(context, [&] { ++calls; });
    utCallRegisteredWarningCallback(context);
    utCallRegisteredWarningCallback(nullptr);
    EXPECT_EQ(calls, 1);
    utRegisterWarningCallback(context, {});
    utCallRegisteredWarningCallback(context);
    EXPECT_EQ(calls, 1);
}

TEST_F(WarningManager, CountHoldsIdentifiersWithTheirOwnStateOnce) {
    EXPECT_EQ(utCountWarningsInWarningManager(context), 0u);
    utSetWarningStatus(context, "a:b", kWarningOff);
    utSetWarningStatus(context, "a:b", kWarningError);
    utSetWarningStatus(context, "All", kWarningOff);
    utSetWarningStatus(context, "A:B", kWarningOn);  // identifiers keep their case
    EXPECT_EQ(utCountWarningsInWarningManager(context), 2u);
    EXPECT_EQ(utGetWarningStatus(context, "a:b"), kWarningError);
    EXPECT_EQ(utGetWarningStatus(context, "A:B"), kWarningOn);
}
