// Tests of the warning built-in's classification of a call and of issuing:
// keywords that are messages, the reversed forms, outputs made before issuing, the empty
// message and message objects.
#include "tests/diagnostic/warnings/warning_fixture.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/ocos/message_object.hpp>

using namespace orrery;
using orrery::testing::chars;
using value::ValueArray;
using warning::WarningState;

namespace {

using WarningBuiltin = orrery::testing::WarningBuiltinTest;

const char* const kReversedNotice =
    "Warning: These inputs look like a state command in reverse order, so they are issued as a warning. Give the "
    "state (on, off or query) first, then the identifier.\n";

TEST_F(WarningBuiltin, KeywordsThatAreNotCommandsAreIssuedAsMessages) {
    for (const char* text : {"error", "ONCE", "Debug", "terse"}) {
        SCOPED_TRACE(text);
        warningCall(0, {chars(text)});
        EXPECT_EQ(takeError(), "Warning: " + std::string(text) + "\n");
        EXPECT_EQ(lastWarning(), (orrery::testing::StateRow{"", text}));
    }
    warningCall(0, {chars("OFF")});
    EXPECT_EQ(takeError(), "");
    EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::Off);
}

TEST_F(WarningBuiltin, TwoInputCallsThatAreNotCommandsAreIssued) {
    // Reversed state commands are issued after a notice; other pairs without one.
    const std::tuple<const char*, ValueArray, bool, const char*> cases[] = {
        {"all", chars("off"), true, "Warning: all\n"},
        {"ORRERY:x:y", chars("ON"), true, "Warning: ON\n"},
        {"LAST", chars("Query"), true, "Warning: LAST\n"},
        {"not an identifier", chars("off"), false, "Warning: not an identifier\n"},
        {"ORRERY:x:y", chars("offline %d"), false, "Warning: offline \n"},
        {"all", ValueArray::scalar(3), false, "Warning: all\n"},
    };
    for (const auto& [first, second, notice, issued] : cases) {
        SCOPED_TRACE(first);
        warningCall(0, {chars(first), second});
        EXPECT_EQ(takeError(), (notice ? kReversedNotice : "") + std::string(issued));
        EXPECT_EQ(warning::utGetWarningStatus(context, "all"), WarningState::On);
        EXPECT_EQ(warning::utCountWarningsInWarningManager(context), 0u);
    }
}

TEST_F(WarningBuiltin, ALoneMessageIsTakenLiterally) {
    // A lone message is taken literally.
    warningCall(0, {chars("100% done\\n")});
    EXPECT_EQ(takeError(), "Warning: 100% done\\n\n");
}

TEST_F(WarningBuiltin, OutputsAreTheLastWarningFromBeforeTheCall) {
    warning::utSetLastWarningMsg(context, "ORRERY:old:one", u"old");
    const auto outputs = warningCall(2, {chars("ORRERY:a:b"), chars("text")});
    EXPECT_EQ(outputs[0]->textUtf8(), "old");
    EXPECT_EQ(outputs[1]->textUtf8(), "ORRERY:old:one");
    EXPECT_EQ(lastWarning(), (orrery::testing::StateRow{"ORRERY:a:b", "text"}));
    EXPECT_MSGID(warningCall(3, {chars("text")}), "ORRERY:tooManyOutputs");
}

TEST_F(WarningBuiltin, AnEmptyMessageClearsTheLastWarningAndPrintsNothing) {
    const ValueArray empties[] = {chars(""), ValueArray::string(u""), ValueArray::charArray(value::Dims{1, 0}, u"")};
    for (const auto& empty : empties) {
        warning::utSetLastWarningMsg(context, "ORRERY:old:one", u"old");
        const auto outputs = warningCall(1, {empty});
        EXPECT_EQ(outputs[0]->textUtf8(), "old");
        EXPECT_EQ(takeError(), "");
        EXPECT_EQ(lastWarning(), (orrery::testing::StateRow{"", ""}));
    }
}

TEST_F(WarningBuiltin, AnalysisFailuresCarryTheWarningPrefix) {
    EXPECT_MSGID(warningCall(0, {chars("ORRERY:a:b")}), "ORRERY:warning:missingMessageArgument");
    EXPECT_MSGID(warningCall(0, {chars("ORRERY:a:b"), ValueArray::scalar(1)}), "ORRERY:warning:badMessageArgument");
    EXPECT_MSGID(warningCall(0, {ValueArray::scalar(1)}), "ORRERY:warning:invalidMessageType");
    EXPECT_MSGID(warningCall(0, {orrery::testing::structOf({}), chars("x")}), "ORRERY:warning:unexpectedArguments");
}

TEST_F(WarningBuiltin, IssuesAMessageObjectWithItsIdentifierAndText) {
    const ValueArray object = ocos::makeMessageObject({"ORRERY:warning:unknownSettingOrId", {std::u16string(u"zz")}});
    warningCall(0, {object});
    EXPECT_EQ(lastWarning().first, "ORRERY:warning:unknownSettingOrId");
    EXPECT_MSGID(warningCall(1, {object}), "ORRERY:tooManyOutputs");
    EXPECT_MSGID(warningCall(0, {object, chars("x")}), "ORRERY:builtins:InvalidNumberOfArguments");
}

}  // namespace
