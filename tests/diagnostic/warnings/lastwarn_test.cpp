// Tests of lastwarn: outputs made before the record changes, replacement of the
// record, and its refusals.
#include "tests/diagnostic/warnings/warning_fixture.hpp"

#include "tests/support/expect_error.hpp"

using namespace orrery;
using orrery::testing::callBuiltin;
using orrery::testing::chars;
using orrery::testing::StateRow;
using value::Dims;
using value::ValueArray;

namespace {

class Lastwarn : public orrery::testing::WarningBuiltinTest {
protected:
    void SetUp() override {
        WarningBuiltinTest::SetUp();
        warning::utSetLastWarningMsg(context, "ORRERY:old:id", u"old message");
    }
};

TEST_F(Lastwarn, OutputsDescribeTheRecordBeforeItChanges) {
    const auto outputs = callBuiltin(&bnLastWarningMsg, 2, {chars("new"), chars("ORRERY:a:b")});
    EXPECT_EQ(outputs[0]->textUtf8(), "old message");
    EXPECT_EQ(outputs[1]->textUtf8(), "ORRERY:old:id");
    EXPECT_EQ(lastWarning(), (StateRow{"ORRERY:a:b", "new"}));
}

TEST_F(Lastwarn, FillsOnlyWhatIsAsked) {
    // Without inputs the answer is given even with no output requested.
    EXPECT_EQ(callBuiltin(&bnLastWarningMsg, 0, {})[0]->textUtf8(), "old message");
    EXPECT_EQ(callBuiltin(&bnLastWarningMsg, 0, {chars("m")})[0], nullptr);
    EXPECT_EQ(lastWarning(), (StateRow{"", "m"}));
}

TEST_F(Lastwarn, EmptyTextClearsAndAnEmptyIdentifierIsAccepted) {
    callBuiltin(&bnLastWarningMsg, 0, {chars("")});
    EXPECT_EQ(lastWarning(), (StateRow{"", ""}));
    callBuiltin(&bnLastWarningMsg, 0, {ValueArray::string(u"text"), chars("")});
    EXPECT_EQ(lastWarning(), (StateRow{"", "text"}));
}

TEST_F(Lastwarn, RefusesBadInputsWithoutStoringThem) {
    const char* const notText = "ORRERY:string:MustBeSingleString";
    const char* const badIdentifier = "ORRERY:lastwarn:badMessageIdentifier";
    EXPECT_MSGID(callBuiltin(&bnLastWarningMsg, 0, {ValueArray::missingString()}), notText);
    EXPECT_MSGID_TEXT(callBuiltin(&bnLastWarningMsg, 0, {chars("m"), ValueArray::scalar(1)}), notText,
                      "The message identifier must be a character vector or a string scalar that is not missing.");
    EXPECT_MSGID(callBuiltin(&bnLastWarningMsg, 0, {chars("m"), ValueArray::chars(u"a:\u00e9")}), badIdentifier);
    EXPECT_EQ(lastWarning(), (StateRow{"ORRERY:old:id", "old message"}));
}

TEST_F(Lastwarn, ChecksItsArgumentCounts) {
    EXPECT_MSGID(callBuiltin(&bnLastWarningMsg, 3, {}), "ORRERY:tooManyOutputs");
    EXPECT_MSGID(callBuiltin(&bnLastWarningMsg, 0, {chars("a"), chars("b:c"), chars("d")}), "ORRERY:tooManyInputs");
}

}  // namespace
