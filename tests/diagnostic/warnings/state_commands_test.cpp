// Tests of the state commands: outputs made before each change, the pseudo
// identifiers, the modes, the refused obsolete forms and the command runner.
#include "tests/diagnostic/warnings/warning_fixture.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/services/services.hpp>

using namespace orrery;
using orrery::testing::chars;
using orrery::testing::rowsOf;
using orrery::testing::StateRow;
using value::Dims;
using value::ValueArray;
using warning::WarningMode;
using warning::WarningState;

namespace {

using StateCommands = orrery::testing::WarningBuiltinTest;

TEST_F(StateCommands, SettingAStateReturnsTheStateBeforeIt) {
    const auto before = warningCall(1, {chars("off"), chars("ORRERY:x:y")});
    EXPECT_EQ(rowsOf(*before[0]), (std::vector<StateRow>{{"ORRERY:x:y", "on"}}));
    EXPECT_EQ(before[0]->dims(), (Dims{1, 1}));
    const auto after = warningCall(1, {chars("ON"), chars("ORRERY:x:y")});
    EXPECT_EQ(rowsOf(*after[0]), (std::vector<StateRow>{{"ORRERY:x:y", "off"}}));
    EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:x:y"), WarningState::On);
    EXPECT_EQ(takeOutput() + takeError(), "");
}

TEST_F(StateCommands, AllIsTheDefaultAndItsOutputListsOnlyTheExceptions) {
    warning::utSetWarningStatus(context, "ORRERY:b:one", WarningState::Off);
    warning::utSetWarningStatus(context, "ORRERY:a:two", WarningState::On);
    warning::utSetWarningStatus(context, "ORRERY:a:three", WarningState::Error);
    const auto outputs = warningCall(1, {chars("off")});
    EXPECT_EQ(rowsOf(*outputs[0]),
              (std::vector<StateRow>{{"all", "on"}, {"ORRERY:b:one", "off"}, {"ORRERY:a:three", "error"}}));
    EXPECT_EQ(outputs[0]->dims(), (Dims{3, 1}));
    EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::Off);
    const auto now = warningCall(1, {});
    EXPECT_EQ(rowsOf(*now[0]),
              (std::vector<StateRow>{{"all", "off"}, {"ORRERY:a:two", "on"}, {"ORRERY:a:three", "error"}}));
}

TEST_F(StateCommands, ErrorNeedsASettingAndAllOnlyWhenTheFeatureAllowsIt) {
    warningCall(0, {chars("Error"), chars("ORRERY:x:y")});
    EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:x:y"), WarningState::Error);
    EXPECT_MSGID(warningCall(0, {chars("error"), chars("")}), "ORRERY:invalidInput");
    EXPECT_MSGID(warningCall(0, {chars("error"), chars("ALL")}), "ORRERY:warning:cannotUseAllWithError");
    EXPECT_MSGID(warningCall(0, {chars("error"), chars("backtrace")}), "ORRERY:warning:unknownSettingOrId");
    services::svSetFeature("AllWarningsCanBeErrors", true);
    warningCall(0, {chars("error"), chars("all")});
    services::svUnregisterFeature("AllWarningsCanBeErrors");
    EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::Error);
}

TEST_F(StateCommands, LastNamesTheLastPrintedWarning) {
    EXPECT_MSGID(warningCall(0, {chars("off"), chars("last")}), "ORRERY:warning:noLastWarning");
    const auto none = warningCall(1, {chars("query"), chars("last")});
    EXPECT_EQ(none[0]->dims(), (Dims{0, 0}));
    EXPECT_EQ(none[0]->fieldNames(), (std::vector<std::string>{"identifier", "state"}));

    warningCall(0, {chars("ORRERY:p:q"), chars("shown")});
    const auto before = warningCall(1, {chars("off"), chars("Last")});
    EXPECT_EQ(rowsOf(*before[0]), (std::vector<StateRow>{{"ORRERY:p:q", "on"}}));
    EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:p:q"), WarningState::Off);
}

TEST_F(StateCommands, ModesSwitchAndReturnTheirStateBefore) {
    const std::tuple<std::vector<const char*>, WarningMode, bool, StateRow> cases[] = {
        {{"off", "BACKTRACE"}, WarningMode::Backtrace, false, {"backtrace", "on"}},
        {{"backtrace"}, WarningMode::Backtrace, true, {"backtrace", "off"}},
        {{"Backtrace", "OFF"}, WarningMode::Backtrace, false, {"backtrace", "on"}},
        {{"on", "verbose"}, WarningMode::Verbose, true, {"verbose", "off"}},
        {{"verbose", "off"}, WarningMode::Verbose, false, {"verbose", "on"}},
    };
    for (const auto& [words, mode, on, before] : cases) {
        SCOPED_TRACE(words[0]);
        const ValueArray first = chars(words[0]);
        const auto outputs = words.size() == 1 ? warningCall(1, {first}) : warningCall(1, {first, chars(words[1])});
        EXPECT_EQ(rowsOf(*outputs[0]), (std::vector<StateRow>{before}));
        EXPECT_EQ(warning::utIsWarningModeOn(context, mode), on);
    }
}

TEST_F(StateCommands, RefusesTheObsoleteForms) {
    const char* const obsolete = "ORRERY:warning:debugOptionIsObsolete";
    const char* const debugOff = "The command 'warning debug off' is obsolete; use 'dbclear if warning' instead.";
    const char* const frequency = "The settings once and always are obsolete and no longer accepted.";
    const std::tuple<std::vector<const char*>, const char*, const char*> cases[] = {
        {{"on", "debug"}, obsolete, "The command 'warning debug on' is obsolete; use 'dbstop if warning' instead."},
        {{"off", "debug"}, obsolete, debugOff},
        {{"query", "debug"}, obsolete, "The command 'warning query debug' is obsolete; use 'dbstatus' instead."},
        {{"off", "Debug"},
         "ORRERY:warning:unknownSettingOrId",
         "'Debug' is neither a warning setting nor a message identifier."},
        {{"always", "ORRERY:x:y"}, "ORRERY:warning:OnceAndAlwaysObsolete", frequency},
    };
    for (const auto& [words, identifier, text] : cases) {
        SCOPED_TRACE(std::string(words[0]) + " " + words[1]);
        EXPECT_MSGID_TEXT(warningCall(0, {chars(words[0]), chars(words[1])}), identifier, text);
    }
    EXPECT_FALSE(warning::utIsWarningModeOn(context, WarningMode::Debug));
    EXPECT_EQ(warning::utCountWarningsInWarningManager(context), 0u);
}

TEST_F(StateCommands, TheRunnerChecksTheSecondInput) {
    EXPECT_MSGID(warningCall(0, {chars("off"), ValueArray::scalar(1)}), "ORRERY:invalidInput");
    EXPECT_MSGID(warningCall(0, {chars("off"), ValueArray::missingString()}), "ORRERY:invalidInput");
    EXPECT_MSGID(warningCall(0, {chars("off"), ValueArray::strings(Dims{1, 2}, {u"a", u"b"})}), "ORRERY:invalidInput");
    EXPECT_MSGID(warningCall(0, {chars("off"), ValueArray::chars(u"\u00e9:x")}), "ORRERY:warning:unknownSettingOrId");
    EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::On);
    // An empty setting counts as none: off alone means all.
    warningCall(0, {chars("off"), chars("")});
    EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::Off);
    warningCall(0, {chars("on"), ValueArray::string(u"ORRERY:x:y")});
    EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:x:y"), WarningState::On);
}

}  // namespace
