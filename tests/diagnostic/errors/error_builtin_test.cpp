// Tests of error and assert through the built-in signature (argument counts and
// the script-visible forms are shown by the last_error and error_forms scripts).
#include "diagnostic/errors/error_builtins.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/class_info.hpp>

#include <cmath>

using namespace orrery;
using except::QException;
using namespace orrery::testing;

namespace {

QException errorOf(value::BuiltinFunction builtin, std::initializer_list<ValueArray> inputs) {
    return orrery::testing::userErrorOf([&] { callBuiltin(builtin, 0, inputs); });
}

struct Case {
    const char* name;
    std::vector<ValueArray> inputs;
    const char* refusal;  // null: returns normally
    std::int32_t nlhs = 0;
};

void expectOutcome(value::BuiltinFunction builtin, const Case& c) {
    SCOPED_TRACE(c.name);
    const orrery::testing::InputList inputs(c.inputs);
    std::vector<value::ValueArrayPtr> slots(4);
    if (c.refusal) {
        EXPECT_MSGID(builtin(c.nlhs, slots.data(), inputs.count(), inputs.data()), c.refusal);
    } else {
        EXPECT_NO_THROW(builtin(c.nlhs, slots.data(), inputs.count(), inputs.data()));
    }
}

}  // namespace

TEST(ErrorBuiltin, EmptyMessagesOfSomeClassesDoNothing) {
    const auto info = std::make_shared<ocos::COSClassInfo>("probe.Thing");
    const auto one = ValueArray::scalar(1);
    const char* const refused = "ORRERY:error:invalidMessageType";
    const Case cases[] = {
        {"1-by-0 char", {ValueArray::charArray(Dims{1, 0}, u""), one}, nullptr},
        {"empty object", {ValueArray::objectArray(info, Dims{1, 0}), one}, nullptr},
        {"empty logical", {ValueArray::zeros(ClassId::Logical, Dims{0, 0})}, refused},
        {"empty string array", {ValueArray::strings(Dims{0, 0}, {})}, refused},
    };
    for (const auto& c : cases) expectOutcome(&bnFullErrorFcn, c);
}

TEST(ErrorBuiltin, StructureGivesIdentifierMessageAndStack) {
    const auto stack = orrery::testing::stackOf({{chars("f.orr"), chars("f"), ValueArray::scalar(7)}});
    const auto error = errorOf(
        &bnFullErrorFcn,
        {structOf({{"message", chars("b\u00f6om")}, {"identifier", ValueArray::string(u"p:q")}, {"stack", stack}})});
    EXPECT_EQ(error.identifier(), "p:q");
    EXPECT_EQ(error.message(), u"b\u00f6om");
    EXPECT_EQ(error.functionName(), "");
    EXPECT_EQ(error.stack().field(0, "line")->realAt(0), 7);
}

TEST(AssertBuiltin, ChecksTheConditionThenTheMessage) {
    const auto no = ValueArray::logicalScalar(false);
    const auto invalidMessage = ValueArray::cell(Dims{2, 2});  // never examined after a holding condition
    const char* const notLogical = "ORRERY:assertion:LogicalScalar";
    const char* const emptyMessage = "ORRERY:assertion:emptyMessageNotAllowed";
    const Case cases[] = {
        {"int8 -2 holds", {ValueArray::numericScalar(ClassId::Int8, -2), invalidMessage}, nullptr},
        {"NaN", {ValueArray::scalar(std::nan(""))}, notLogical},
        {"struct", {structOf({})}, notLogical},
        {"empty string scalar", {no, ValueArray::string(u"")}, emptyMessage},
        {"empty double", {no, ValueArray()}, emptyMessage},
    };
    for (const auto& c : cases) expectOutcome(&bnFullAssertFcn, c);
}

TEST(AssertBuiltin, BareFailureSkipsTheLegacyReport) {
    QException::LastError::Set("p:q", u"before", std::nullopt);
    int reports = 0;
    const auto previous = except::setLegacyErrorListener([&](const except::IMsgIDException&) { ++reports; });
    EXPECT_MSGID_TEXT(callBuiltin(&bnFullAssertFcn, 0, {ValueArray::scalar(0)}), "ORRERY:assertion:failed",
                      "Assertion failed.");
    except::setLegacyErrorListener(previous);
    EXPECT_EQ(reports, 0);
    EXPECT_EQ(QException::LastError::Get().message, u"before");
}

TEST(AssertBuiltin, FailureWithAStructureIsRaisedUnderItsName) {
    const auto error =
        errorOf(&bnFullAssertFcn, {ValueArray::logicalScalar(false), structOf({{"message", chars("s")}})});
    EXPECT_EQ(error.message(), u"s");
    EXPECT_EQ(error.functionName(), "assert");
}
