// Tests of lasterr and lasterror: outputs made before the record changes,
// replacement and reset of the record, and their refusals.
#include "diagnostic/errors/error_builtins.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

using namespace orrery;
using LastError = except::QException::LastError;
using orrery::testing::callBuiltin;
using orrery::testing::chars;
using orrery::testing::structOf;
using value::Dims;
using value::ValueArray;

namespace {

class LastErrorRecord : public ::testing::Test {
protected:
    void SetUp() override { LastError::Set("old:id", u"old message", std::nullopt); }
    void TearDown() override { LastError::Set("", u"", std::nullopt); }
};

}  // namespace

// ---- lasterr ------------------------------------------------------------------------

using Lasterr = LastErrorRecord;

TEST_F(Lasterr, FillsOnlyTheRequestedOutputs) {
    // No output with an input: nothing is returned, only the record changes.
    EXPECT_EQ(callBuiltin(&bnLastErrMsg, 0, {chars("m")})[0], nullptr);
    // One output: the identifier slot stays untouched (checked by callBuiltin).
    EXPECT_EQ(callBuiltin(&bnLastErrMsg, 1, {})[0]->textUtf8(), "m");
}

TEST_F(Lasterr, NewMessageClearsIdentifierAndStackUnlessGivenTextIdentifier) {
    LastError::Set("a:b", u"x", ValueArray::stackStructure(0));
    callBuiltin(&bnLastErrMsg, 0, {chars(""), ValueArray::scalar(5)});
    EXPECT_EQ(LastError::Get().message, u"");
    EXPECT_EQ(LastError::Get().identifier, "");
    EXPECT_FALSE(LastError::Get().stack.has_value());
    EXPECT_EQ(callBuiltin(&bnLastErrMsg, 1, {})[0]->dims(), (Dims{0, 0}));
}

TEST_F(Lasterr, RefusesBadInputsWithoutStoringThem) {
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

TEST_F(Lasterror, OutputDescribesTheRecordBeforeTheReset) {
    EXPECT_EQ(callBuiltin(&bnLastErrorFcn, 1, {chars("reset")})[0]->field(0, "identifier")->textUtf8(), "old:id");
    ASSERT_TRUE(LastError::Get().stack.has_value());
    EXPECT_EQ(LastError::Get().stack->dims(), (Dims{0, 1}));
    // With an input and no output requested, nothing is returned.
    EXPECT_EQ(callBuiltin(&bnLastErrorFcn, 0, {chars("reset")})[0], nullptr);
}

TEST_F(Lasterror, TakesBackWhatItReturnsAndResetsOnAnEmptyStructure) {
    const auto stack = orrery::testing::stackOf({{chars("f.orr"), chars("f"), ValueArray::scalar(2)}});
    LastError::Set("", u"m", stack);
    const auto saved = callBuiltin(&bnLastErrorFcn, 1, {});
    LastError::Set("x:y", u"other", std::nullopt);
    callBuiltin(&bnLastErrorFcn, 0, {*saved[0]});
    EXPECT_EQ(LastError::Get().identifier, "");
    EXPECT_EQ(LastError::Get().message, u"m");
    EXPECT_EQ(LastError::Get().stack->field(0, "name")->textUtf8(), "f");
    callBuiltin(&bnLastErrorFcn, 0, {structOf({{"message", chars("n")}})});
    EXPECT_FALSE(LastError::Get().stack.has_value());
    callBuiltin(&bnLastErrorFcn, 0, {ValueArray::structArray(Dims{0, 0})});
    EXPECT_EQ(LastError::Get().stack->dims(), (Dims{0, 1}));
}

TEST_F(Lasterror, AStoredBadStackIsReportedWhenRead) {
    LastError::Set("a:b", u"m", ValueArray::structArray(Dims{1, 2}, {"file", "name", "line"}));
    EXPECT_MSGID(callBuiltin(&bnLastErrorFcn, 1, {}), "ORRERY:error:badStack");
}

TEST_F(Lasterror, ResetKeywordIgnoresAsciiCaseOnly) {
    // A null failure means the input resets the record.
    const std::tuple<const char*, ValueArray, const char*> cases[] = {
        {"reset", chars("reset"), nullptr},
        {"Reset string", ValueArray::string(u"Reset"), nullptr},
        {"0-by-0 char", chars(""), "ORRERY:lasterror:nonStructureInput"},
        // Deliberately, a unit above 127 fails only when reached: within the first
        // five units, after every unit before it has matched.
        {"non-ASCII reached", ValueArray::chars(u"re\u0161et"), "ORRERY:text:invalidCharacter"},
        {"non-ASCII first", ValueArray::chars(u"\u00e9"), "ORRERY:text:invalidCharacter"},
        {"mismatch before non-ASCII", ValueArray::chars(u"rx\u00e9"), "ORRERY:lasterror:nonStructureInput"},
        {"non-ASCII after five", ValueArray::chars(u"reset\u00e9"), "ORRERY:lasterror:nonStructureInput"},
    };
    for (const auto& [name, input, failure] : cases) {
        SCOPED_TRACE(name);
        LastError::Set("old:id", u"old message", std::nullopt);
        if (failure) {
            EXPECT_MSGID(callBuiltin(&bnLastErrorFcn, 0, {input}), failure);
        } else {
            callBuiltin(&bnLastErrorFcn, 0, {input});
            EXPECT_EQ(LastError::Get().message, u"");
        }
    }
}
