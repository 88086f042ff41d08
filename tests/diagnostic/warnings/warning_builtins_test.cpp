// Tests of the warning built-ins beyond what the warning_commands script shows:
// the feature that lets all warnings be errors, and missing strings, which a
// script cannot make.
#include "diagnostic/warnings/warning_builtins.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/services/services.hpp>
#include <orrery/warning/warning_manager.hpp>

using namespace orrery;
using namespace orrery::testing;
using warning::WarningState;

namespace {

// Each test has a machine of its own, so a fresh warning manager context.
class WarningBuiltins : public ::testing::Test {
protected:
    const interp::VirtualMachineScope machine;
    const console::ConsoleCapture console;
    warning::WarningManagerContext* const context = warning::utGetWarningManagerContext();
};

TEST_F(WarningBuiltins, AllCanBeAnErrorOnlyWhenTheFeatureAllowsIt) {
    EXPECT_MSGID(callBuiltin(&bnFullWarningFcn, 0, {chars("error"), chars("ALL")}),
                 "ORRERY:warning:cannotUseAllWithError");
    services::svSetFeature("AllWarningsCanBeErrors", true);
    callBuiltin(&bnFullWarningFcn, 0, {chars("error"), chars("all")});
    services::svUnregisterFeature("AllWarningsCanBeErrors");
    EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::Error);
}

// The rule that a new default replaces every own state, for the one new default a
// script cannot set ("error") as well as the others, by command and by structure.
TEST_F(WarningBuiltins, SettingAllGivesEveryIdentifierTheNewDefault) {
    services::svSetFeature("AllWarningsCanBeErrors", true);
    const std::pair<const char*, WarningState> kStates[] = {
        {"off", WarningState::Off}, {"on", WarningState::On}, {"error", WarningState::Error}};
    for (const bool byStructure : {false, true})
        for (const auto& [own, ownState] : kStates)
            for (const auto& [all, allState] : kStates) {
                SCOPED_TRACE(std::string(own) + " then all " + all + (byStructure ? " by structure" : ""));
                callBuiltin(&bnFullWarningFcn, 0, {chars(own), chars("probe:x")});
                if (byStructure)
                    callBuiltin(&bnFullWarningFcn, 0,
                                {structOf({{"identifier", chars("all")}, {"state", chars(all)}})});
                else
                    callBuiltin(&bnFullWarningFcn, 0, {chars(all), chars("all")});
                EXPECT_EQ(warning::utGetWarningStatus(context, "probe:x"), allState);
                EXPECT_EQ(callBuiltin(&bnFullWarningFcn, 1, {})[0]->numel(), 1u) << "the listing holds all alone";
            }
    services::svUnregisterFeature("AllWarningsCanBeErrors");
}

TEST_F(WarningBuiltins, MissingStringsAreRefusedAndChangeNothing) {
    const value::ValueArray missing = value::ValueArray::missingString();
    const value::ValueArray states = structOf({{"identifier", chars("all")}, {"state", missing}});
    EXPECT_MSGID(callBuiltin(&bnFullWarningFcn, 0, {chars("off"), missing}), "ORRERY:invalidInput");
    EXPECT_MSGID(callBuiltin(&bnStructureWarningFcn, 0, {states}), "ORRERY:warning:nonStringState");
    warning::utSetLastWarningMsg(context, "a:b", u"kept");
    EXPECT_MSGID(callBuiltin(&bnLastWarningMsg, 0, {missing}), "ORRERY:string:MustBeSingleString");
    EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::On);
    std::u16string message;
    std::string identifier;
    warning::utGetLastWarningMsg(context, message, identifier);
    EXPECT_EQ(message, u"kept");
}

}  // namespace
