// Tests of lasterr and lasterror: outputs made before the record changes,
// replacement and reset of the record, and their refusals.
#include "diagnostic/errors/error_builtins.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/text/text.hpp>

using namespace orrery;
using LastError = except::QException::LastError;
using orrery::testing::callBuiltin;
using orrery::testing::chars;
using orrery::testing::structOf;
using value::ClassId;
using value::Dims;
using value::ValueArray;

namespace {

class LastErrorRecord : public ::testing::Test {
protected:
    void SetUp() override { LastError::Set("old:id", u"old message", std::nullopt); }
    void TearDown() override { LastError::Set("", u"", std::nullopt); }
};

std::string textOf(const value::ValueArrayPtr& output) {
    EXPECT_NE(output, nullptr);
    return output ? text::utf16ToUtf8(output->text()) : std::string();
}

std::string fieldText(const ValueArray& structure, const char* name) {
    return text::utf16ToUtf8(structure.field(0, name)->text());
}

}  // namespace

// ---- lasterr ------------------------------------------------------------------------

using Lasterr = LastErrorRecord;

TEST_F(Lasterr, OutputsDescribeTheRecordBeforeItChanges) {
    // The slots' previous content is replaced.
    std::vector<value::ValueArrayPtr> slots(2);
    slots[0] = value::makeValue(ValueArray::scalar(1));
    slots[1] = value::makeValue(ValueArray::scalar(2));
    const orrery::testing::InputList inputs{chars("new message"), chars("new:id")};
    bnLastErrMsg(2, slots.data(), inputs.count(), inputs.data());
    EXPECT_EQ(textOf(slots[0]), "old message");
    EXPECT_EQ(textOf(slots[1]), "old:id");
    EXPECT_EQ(LastError::Get().message, u"new message");
    EXPECT_EQ(LastError::Get().identifier, "new:id");
}

TEST_F(Lasterr, FillsOnlyTheRequestedOutputs) {
    // No output and no input: the message is still the answer value.
    EXPECT_EQ(textOf(callBuiltin(&bnLastErrMsg, 0, {})[0]), "old message");
    // No output with an input: nothing is returned, only the record changes.
    EXPECT_EQ(callBuiltin(&bnLastErrMsg, 0, {chars("m")})[0], nullptr);
    EXPECT_EQ(LastError::Get().message, u"m");
    // One output: the identifier slot stays untouched (checked by callBuiltin).
    EXPECT_EQ(textOf(callBuiltin(&bnLastErrMsg, 1, {})[0]), "m");
}

TEST_F(Lasterr, StripsHotLinksUnlessAsked) {
    LastError::Set("", u"See <a href=\"help:x\">the help</a>.", std::nullopt);
    EXPECT_EQ(textOf(callBuiltin(&bnLastErrMsg, 1, {})[0]), "See the help.");
    EXPECT_EQ(textOf(callBuiltin(&bnLastErrMsg, 1, {chars("-hotlinks")})[0]), "See <a href=\"help:x\">the help</a>.");
    // The flag is case-sensitive: anything else is a new message.
    callBuiltin(&bnLastErrMsg, 0, {chars("-HOTLINKS")});
    EXPECT_EQ(LastError::Get().message, u"-HOTLINKS");
    // After the flag, the next input is the new message.
    const auto outputs = callBuiltin(&bnLastErrMsg, 1, {ValueArray::string(u"-hotlinks"), chars("next")});
    EXPECT_EQ(textOf(outputs[0]), "-HOTLINKS");
    EXPECT_EQ(LastError::Get().message, u"next");
}

TEST_F(Lasterr, EmptyMessageAndLenientIdentifier) {
    callBuiltin(&bnLastErrMsg, 0, {chars("")});
    EXPECT_EQ(LastError::Get().message, u"");
    EXPECT_EQ(LastError::Get().identifier, "");
    EXPECT_EQ(callBuiltin(&bnLastErrMsg, 1, {})[0]->dims(), (Dims{0, 0}));
    // An identifier of another class is ignored without complaint.
    LastError::Set("a:b", u"x", ValueArray::stackStructure(0));
    callBuiltin(&bnLastErrMsg, 0, {chars("msg"), ValueArray::scalar(5)});
    EXPECT_EQ(LastError::Get().identifier, "");
    EXPECT_FALSE(LastError::Get().stack.has_value());
}

TEST_F(Lasterr, RefusesBadInputsWithoutStoringThem) {
    EXPECT_MSGID_TEXT(callBuiltin(&bnLastErrMsg, 0, {chars("msg"), chars("not an id")}),
                      "ORRERY:lasterr:badMessageIdentifier",
                      "'not an id' is not a valid message identifier. An identifier has two or more components "
                      "separated by colons, each starting with a letter.");
    EXPECT_NE(LastError::Get().message, u"msg");
    const std::pair<const char*, ValueArray> notText[] = {
        {"number", ValueArray::scalar(5)},
        {"missing string", ValueArray::missingString()},
        {"string array", ValueArray::strings(Dims{1, 2}, {u"a", u"b"})},
    };
    for (const auto& [name, input] : notText) {
        SCOPED_TRACE(name);
        EXPECT_MSGID(callBuiltin(&bnLastErrMsg, 0, {input}), "ORRERY:string:MustBeStringScalarOrCharacterVector");
    }
}

// ---- lasterror ------------------------------------------------------------------------

using Lasterror = LastErrorRecord;

TEST_F(Lasterror, ReturnsTheRecordWithTheEmptyStackForNone) {
    LastError::Set("", u"", std::nullopt);
    const auto first = callBuiltin(&bnLastErrorFcn, 0, {});
    ASSERT_NE(first[0], nullptr);
    const ValueArray& error = *first[0];
    EXPECT_EQ(error.dims(), (Dims{1, 1}));
    EXPECT_EQ(error.fieldNames(), (std::vector<std::string>{"message", "identifier", "stack"}));
    EXPECT_EQ(fieldText(error, "message"), "");
    EXPECT_EQ(fieldText(error, "identifier"), "");
    const ValueArray& stack = *error.field(0, "stack");
    EXPECT_EQ(stack.dims(), (Dims{0, 1}));
    EXPECT_EQ(stack.fieldNames(), (std::vector<std::string>{"file", "name", "line"}));
    // One empty stack array serves every call.
    const auto second = callBuiltin(&bnLastErrorFcn, 1, {});
    EXPECT_TRUE(second[0]->field(0, "stack")->sharesDataWith(stack));
}

TEST_F(Lasterror, OutputDescribesTheRecordBeforeTheReset) {
    const auto outputs = callBuiltin(&bnLastErrorFcn, 1, {chars("reset")});
    EXPECT_EQ(fieldText(*outputs[0], "message"), "old message");
    EXPECT_EQ(fieldText(*outputs[0], "identifier"), "old:id");
    EXPECT_EQ(LastError::Get().message, u"");
    ASSERT_TRUE(LastError::Get().stack.has_value());
    EXPECT_EQ(LastError::Get().stack->dims(), (Dims{0, 1}));
    // With an input and no output requested, nothing is returned.
    EXPECT_EQ(callBuiltin(&bnLastErrorFcn, 0, {chars("reset")})[0], nullptr);
}

TEST_F(Lasterror, ReplacesTheRecordFromAStructure) {
    callBuiltin(&bnLastErrorFcn, 0, {structOf({{"message", chars("m")}})});
    EXPECT_EQ(LastError::Get().message, u"m");
    EXPECT_EQ(LastError::Get().identifier, "");
    EXPECT_FALSE(LastError::Get().stack.has_value());
    // What lasterror returns it accepts back unchanged.
    const auto stack = orrery::testing::stackOf({{chars("f.orr"), chars("f"), ValueArray::scalar(2)}});
    LastError::Set("", u"", stack);
    const auto saved = callBuiltin(&bnLastErrorFcn, 1, {});
    LastError::Set("x:y", u"other", std::nullopt);
    callBuiltin(&bnLastErrorFcn, 0, {*saved[0]});
    EXPECT_EQ(LastError::Get().identifier, "");
    EXPECT_TRUE(LastError::Get().stack->sharesDataWith(stack));
    // An empty structure resets.
    callBuiltin(&bnLastErrorFcn, 0, {ValueArray::structArray(Dims{0, 0})});
    EXPECT_EQ(LastError::Get().stack->dims(), (Dims{0, 1}));
    EXPECT_MSGID(callBuiltin(&bnLastErrorFcn, 0, {ValueArray::structArray(Dims{1, 2})}), "ORRERY:error:nonScalarInput");
}

TEST_F(Lasterror, AStoredBadStackIsReportedWhenRead) {
    LastError::Set("a:b", u"m", ValueArray::structArray(Dims{1, 2}, {"file", "name", "line"}));
    EXPECT_MSGID(callBuiltin(&bnLastErrorFcn, 1, {}), "ORRERY:error:badStack");
}

TEST_F(Lasterror, ResetKeywordIgnoresAsciiCaseOnly) {
    struct Case {
        const char* name;
        ValueArray input;
        const char* failure;  // null: resets
    };
    const Case cases[] = {
        {"reset", chars("reset"), nullptr},
        {"RESET", chars("RESET"), nullptr},
        {"Reset string", ValueArray::string(u"Reset"), nullptr},
        {"trailing space", chars("reset "), "ORRERY:lasterror:nonStructureInput"},
        {"empty text", ValueArray::charArray(Dims{1, 0}, u""), "ORRERY:lasterror:nonStructureInput"},
        {"0-by-0 char", chars(""), "ORRERY:lasterror:nonStructureInput"},
        {"number", ValueArray::scalar(5), "ORRERY:lasterror:nonStructureInput"},
        // Deliberately, a unit above 127 fails only when reached: within the first
        // five units, after every unit before it has matched.
        {"non-ASCII reached", ValueArray::chars(u"re\u0161et"), "ORRERY:text:invalidCharacter"},
        {"non-ASCII first", ValueArray::chars(u"\u00e9"), "ORRERY:text:invalidCharacter"},
        {"mismatch before non-ASCII", ValueArray::chars(u"rx\u00e9"), "ORRERY:lasterror:nonStructureInput"},
        {"non-ASCII after five", ValueArray::chars(u"reset\u00e9"), "ORRERY:lasterror:nonStructureInput"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        LastError::Set("old:id", u"old message", std::nullopt);
        if (c.failure) {
            EXPECT_MSGID(callBuiltin(&bnLastErrorFcn, 0, {c.input}), c.failure);
        } else {
            callBuiltin(&bnLastErrorFcn, 0, {c.input});
            EXPECT_EQ(LastError::Get().message, u"");
        }
    }
}
