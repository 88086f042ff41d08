// Tests of restoring warning states from a structure: the checks of every
// element before any is applied, the previous states, and partial application.
#include "tests/diagnostic/warnings/warning_fixture.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/services/services.hpp>

using namespace orrery;
using orrery::testing::callBuiltin;
using orrery::testing::chars;
using orrery::testing::rowsOf;
using orrery::testing::StateRow;
using value::Dims;
using value::ValueArray;
using warning::WarningMode;
using warning::WarningState;

namespace {

using StructureWarning = orrery::testing::WarningBuiltinTest;

// A 1-by-N structure of (identifier, state) pairs.
ValueArray statesOf(const std::vector<std::pair<ValueArray, ValueArray>>& rows) {
    auto states = ValueArray::structArray(Dims{1, rows.size()}, {"identifier", "state"});
    for (std::size_t i = 0; i < rows.size(); ++i) {
        states.setField(i, "identifier", rows[i].first);
        states.setField(i, "state", rows[i].second);
    }
    return states;
}

TEST_F(StructureWarning, RestoresWhatASavedColumnHolds) {
    warning::utSetWarningStatus(context, "ORRERY:a:one", WarningState::Off);
    const auto saved = warningCall(1, {});
    warningCall(0, {chars("off"), chars("all")});
    warningCall(0, {chars("error"), chars("ORRERY:a:two")});
    // "all" comes first in the column, so the listed identifiers win over it.
    const auto before = warningCall(1, {*saved[0]});
    EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::On);
    EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:a:one"), WarningState::Off);
    EXPECT_EQ(rowsOf(*before[0]), (std::vector<StateRow>{{"all", "off"}, {"ORRERY:a:one", "off"}}));
    EXPECT_EQ(before[0]->dims(), (Dims{2, 1}));
    // Identifiers not in the column keep their state.
    EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:a:two"), WarningState::Error);
}

TEST_F(StructureWarning, AppliesEachWordOfStateAndTarget) {
    const auto states = statesOf({{chars("ORRERY:x:y"), chars("ON")},
                                  {ValueArray::string(u"ORRERY:x:z"), ValueArray::string(u"error")},
                                  {chars("BACKTRACE"), chars("off")},
                                  {chars("verbose"), chars("On")}});
    warning::utSetWarningStatus(context, "ORRERY:x:y", WarningState::Off);
    const auto before = callBuiltin(&bnStructureWarningFcn, 1, {states});
    EXPECT_EQ(
        rowsOf(*before[0]),
        (std::vector<StateRow>{{"ORRERY:x:y", "off"}, {"ORRERY:x:z", "on"}, {"BACKTRACE", "on"}, {"verbose", "off"}}));
    EXPECT_EQ(before[0]->dims(), (Dims{1, 4}));
    EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:x:y"), WarningState::On);
    EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:x:z"), WarningState::Error);
    EXPECT_FALSE(warning::utIsWarningModeOn(context, WarningMode::Backtrace));
    EXPECT_TRUE(warning::utIsWarningModeOn(context, WarningMode::Verbose));
}

TEST_F(StructureWarning, AnEmptyStructureChangesNothing) {
    const auto before =
        callBuiltin(&bnStructureWarningFcn, 1, {ValueArray::structArray(Dims{0, 0}, {"state", "identifier"})});
    EXPECT_EQ(before[0]->dims(), (Dims{0, 0}));
    EXPECT_EQ(warning::utCountWarningsInWarningManager(context), 0u);
}

TEST_F(StructureWarning, ChecksEveryElementBeforeApplyingAny) {
    const ValueArray good = chars("ORRERY:x:y");
    const std::tuple<const char*, ValueArray, ValueArray, const char*> cases[] = {
        {"numeric state", good, ValueArray::scalar(1), "ORRERY:warning:nonStringState"},
        {"empty state", good, ValueArray(), "ORRERY:warning:nonStringState"},
        {"missing state", good, ValueArray::missingString(), "ORRERY:warning:nonStringState"},
        {"unknown state", good, chars("query"), "ORRERY:warning:badStateValue"},
        {"numeric identifier", ValueArray::scalar(2), chars("off"), "ORRERY:warning:nonStringIdentifier"},
        {"non-ASCII identifier", ValueArray::chars(u"a:\u00e9"), chars("off"), "ORRERY:warning:badIdentifierValue"},
        {"not an identifier", chars("nothing"), chars("off"), "ORRERY:warning:badIdentifierValue"},
        {"Debug", chars("Debug"), chars("off"), "ORRERY:warning:badIdentifierValue"},
    };
    for (const auto& [name, identifier, state, failure] : cases) {
        SCOPED_TRACE(name);
        const auto states = statesOf({{good, chars("off")}, {chars("all"), chars("off")}, {identifier, state}});
        EXPECT_MSGID(callBuiltin(&bnStructureWarningFcn, 0, {states}), failure);
        EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::On);
        EXPECT_EQ(warning::utCountWarningsInWarningManager(context), 0u);
    }
    const auto states = statesOf({{good, chars("off")}, {good, chars("off")}, {good, ValueArray::scalar(1)}});
    EXPECT_MSGID_TEXT(callBuiltin(&bnStructureWarningFcn, 0, {states}), "ORRERY:warning:nonStringState",
                      "The state of element 3 must be a character vector or string scalar.");
}

TEST_F(StructureWarning, RefusesAStructureWithoutBothFields) {
    const ValueArray structures[] = {
        ValueArray::structArray(Dims{1, 1}),
        orrery::testing::structOf({{"identifier", chars("all")}}),
        orrery::testing::structOf({{"State", chars("on")}, {"identifier", chars("all")}}),
    };
    for (const auto& states : structures)
        EXPECT_MSGID(callBuiltin(&bnStructureWarningFcn, 0, {states}), "ORRERY:warning:missingStructureField");
    EXPECT_MSGID(callBuiltin(&bnStructureWarningFcn, 2, {structures[0]}), "ORRERY:tooManyOutputs");
}

TEST_F(StructureWarning, AFailingElementLeavesTheOnesBeforeItApplied) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"all", "error", "ORRERY:warning:cannotUseAllWithError"},
        {"last", "off", "ORRERY:warning:noLastWarning"},
        {"debug", "on", "ORRERY:warning:debugOptionIsObsolete"},
        {"verbose", "error", "ORRERY:warning:unknownSettingOrId"},
    };
    for (const auto& [identifier, state, failure] : cases) {
        SCOPED_TRACE(identifier);
        warning::utSetWarningStatus(context, "ORRERY:x:y", WarningState::On);
        const auto states = statesOf({{chars("ORRERY:x:y"), chars("off")},
                                      {chars(identifier), chars(state)},
                                      {chars("ORRERY:x:z"), chars("off")}});
        EXPECT_MSGID(callBuiltin(&bnStructureWarningFcn, 0, {states}), failure);
        EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:x:y"), WarningState::Off);
        EXPECT_EQ(warning::utGetWarningStatus(context, "ORRERY:x:z"), WarningState::On);
    }
}

}  // namespace
