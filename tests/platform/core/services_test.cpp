// Tests of the services layer and the warning manager's plain state.
#include <orrery/services/services.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <gtest/gtest.h>

using namespace orrery;

TEST(Services, FeatureSwitchesAreRegisteredAndSwitched) {
    EXPECT_FALSE(services::svIsFeatureRegistered("SuppressCommandLineOutput"));
    EXPECT_FALSE(services::svIsFeatureEnabled("SuppressCommandLineOutput"));
    services::svSetFeature("SuppressCommandLineOutput", false);
    EXPECT_TRUE(services::svIsFeatureRegistered("SuppressCommandLineOutput"));
    EXPECT_FALSE(services::svIsFeatureEnabled("SuppressCommandLineOutput"));
    services::svSetFeature("SuppressCommandLineOutput", true);
    EXPECT_TRUE(services::svIsFeatureEnabled("SuppressCommandLineOutput"));
    services::svUnregisterFeature("SuppressCommandLineOutput");
    EXPECT_FALSE(services::svIsFeatureRegistered("SuppressCommandLineOutput"));
}

TEST(Services, BuiltinsAreFoundByName) {
    static int calls = 0;
    value::BuiltinFunction f = [](std::int32_t, value::ValueArrayPtr*, std::int32_t, const value::ValueArray* const*) {
        ++calls;
    };
    EXPECT_EQ(services::svLookupBuiltin("Probe"), nullptr);
    services::svRegisterBuiltin("Probe", 0, f);
    ASSERT_EQ(services::svLookupBuiltin("Probe"), f);
    services::svLookupBuiltin("Probe")(0, nullptr, 0, nullptr);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(services::svRegistrationCount("Probe"), 1);
}

TEST(WarningManager, IdentifierRule) {
    const char* valid[] = {"a:b", "ORRERY:demo:x", "a-b:c", "A1_:b2-"};
    const char* invalid[] = {"", "a", "a:", ":b", "a::b", "a b:c", "1a:b", "a:1b", "a:b:", "caf\xC3\xA9:x"};
    for (const char* id : valid) EXPECT_TRUE(warning::utIsValidMessageIdentifier(id)) << id;
    for (const char* id : invalid) EXPECT_FALSE(warning::utIsValidMessageIdentifier(id)) << id;
}

TEST(WarningManager, StatesFallBackToTheDefaultAndKeepInsertionOrder) {
    auto* context = warning::utGetWarningManagerContext();
    ASSERT_NE(context, nullptr);
    EXPECT_EQ(warning::utGetWarningStatus(context, "x:y"), warning::kWarningOn);
    warning::utSetWarningStatus(context, "z:z", warning::kWarningOff);
    warning::utSetWarningStatus(context, "a:a", warning::kWarningError);
    warning::utSetWarningStatus(context, "ALL", warning::kWarningOff);
    EXPECT_EQ(warning::utGetWarningStatus(context, "x:y"), warning::kWarningOff);
    EXPECT_EQ(warning::utGetWarningStatus(context, "a:a"), warning::kWarningError);
    std::vector<std::string> order;
    warning::utIterateOverWarningStatuses(context, [&](const std::string& id, int) { order.push_back(id); });
    EXPECT_EQ(order, (std::vector<std::string>{"z:z", "a:a"}));
    EXPECT_EQ(warning::utCountWarningsInWarningManager(context), 2u);
}

TEST(WarningManager, ModesStartWithBacktraceOnly) {
    auto* context = warning::utGetWarningManagerContext();
    EXPECT_FALSE(warning::utIsWarningModeOn(context, warning::kModeDebug));
    EXPECT_TRUE(warning::utIsWarningModeOn(context, warning::kModeBacktrace));
    EXPECT_FALSE(warning::utIsWarningModeOn(context, warning::kModeVerbose));
    warning::utSetWarningMode(context, warning::kModeVerbose, true);
    EXPECT_TRUE(warning::utIsWarningModeOn(context, warning::kModeVerbose));
}
