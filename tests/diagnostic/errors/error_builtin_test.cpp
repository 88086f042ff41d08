// Tests of error and assert through the built-in signature.
#include "diagnostic/errors/error_builtins.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/message_object.hpp>
#include <orrery/text/text.hpp>

#include <cmath>

using namespace orrery;
using except::QException;
using orrery::testing::callBuiltin;
using orrery::testing::chars;
using orrery::testing::structOf;
using orrery::testing::userErrorOf;
using value::ClassId;
using value::Dims;
using value::ValueArray;

namespace {

QException errorOf(value::BuiltinFunction builtin, std::initializer_list<ValueArray> inputs) {
    return userErrorOf([&] { callBuiltin(builtin, 0, inputs); });
}

std::string messageOf(const QException& error) { return text::utf16ToUtf8(error.message()); }

}  // namespace

// ---- error ------------------------------------------------------------------------

TEST(ErrorBuiltin, EmptyMessagesOfSomeClassesDoNothing) {
    const auto info = std::make_shared<ocos::COSClassInfo>("probe.Thing");
    const std::pair<const char*, ValueArray> silent[] = {
        {"0-by-0 char", chars("")},
        {"1-by-0 char", ValueArray::charArray(Dims{1, 0}, u"")},
        {"empty double", ValueArray::doubles(Dims{0, 3}, {})},
        {"empty struct", ValueArray::structArray(Dims{0, 0}, {"message"})},
        {"empty object", ValueArray::objectArray(info, Dims{1, 0})},
        {"empty string scalar", ValueArray::string(u"")},
    };
    for (const auto& [name, input] : silent) {
        SCOPED_TRACE(name);
        EXPECT_NO_THROW(callBuiltin(&bnFullErrorFcn, 0, {input, ValueArray::scalar(1)}));
    }
    const std::pair<const char*, ValueArray> refused[] = {
        {"empty cell", ValueArray::cell(Dims{0, 0})},
        {"empty logical", ValueArray::zeros(ClassId::Logical, Dims{0, 0})},
        {"empty string array", ValueArray::strings(Dims{0, 0}, {})},
    };
    for (const auto& [name, input] : refused) {
        SCOPED_TRACE(name);
        EXPECT_MSGID(callBuiltin(&bnFullErrorFcn, 0, {input}), "ORRERY:error:invalidMessageType");
    }
}

TEST(ErrorBuiltin, RaisesEachAcceptedForm) {
    EXPECT_QEXCEPTION(callBuiltin(&bnFullErrorFcn, 0, {chars("Result 100% done")}), "", "Result 100% done");
    EXPECT_QEXCEPTION(callBuiltin(&bnFullErrorFcn, 0, {chars("a:b"), chars("count %d"), ValueArray::scalar(3)}), "a:b",
                      "count 3");
    EXPECT_QEXCEPTION(callBuiltin(&bnFullErrorFcn, 0, {chars("%d:%d"), ValueArray::scalar(1), ValueArray::scalar(2)}),
                      "", "1:2");
    EXPECT_QEXCEPTION(callBuiltin(&bnFullErrorFcn, 0, {ocos::makeMessageObject({"ORRERY:assertion:failed", {}})}),
                      "ORRERY:assertion:failed", "Assertion failed.");
}

TEST(ErrorBuiltin, StructureGivesIdentifierMessageAndStack) {
    const auto stack = orrery::testing::stackOf({{chars("f.orr"), chars("f"), ValueArray::scalar(7)}});
    const auto error =
        errorOf(&bnFullErrorFcn,
                {structOf({{"identifier", chars("p:q")}, {"message", ValueArray::string(u"boom")}, {"stack", stack}})});
    EXPECT_EQ(error.identifier(), "p:q");
    EXPECT_EQ(messageOf(error), "boom");
    EXPECT_EQ(error.functionName(), "");
    EXPECT_TRUE(error.stack().sharesDataWith(stack));
}

// ---- assert -----------------------------------------------------------------------

TEST(AssertBuiltin, ConditionMustBeALogicalScalarOrConvertToOne) {
    const std::pair<const char*, ValueArray> holding[] = {
        {"true", ValueArray::logicalScalar(true)},
        {"number 1", ValueArray::scalar(1)},
        {"int8 -2", ValueArray::numericScalar(ClassId::Int8, -2)},
        {"char", chars("a")},
    };
    for (const auto& [name, condition] : holding) {
        SCOPED_TRACE(name);
        // An invalid message after a true condition is never examined.
        EXPECT_NO_THROW(callBuiltin(&bnFullAssertFcn, 0, {condition, ValueArray::cell(Dims{2, 2})}));
    }
    const std::pair<const char*, ValueArray> refused[] = {
        {"empty", ValueArray()},
        {"logical vector", ValueArray::logicals(Dims{1, 2}, {true, true})},
        {"NaN", ValueArray::scalar(std::nan(""))},
        {"string", ValueArray::string(u"true")},
        {"struct", orrery::testing::structOf({})},
    };
    for (const auto& [name, condition] : refused) {
        SCOPED_TRACE(name);
        EXPECT_MSGID(callBuiltin(&bnFullAssertFcn, 0, {condition}), "ORRERY:assertion:LogicalScalar");
    }
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

TEST(AssertBuiltin, FailedConditionRefusesAnEmptyMessage) {
    const std::pair<const char*, ValueArray> empties[] = {
        {"0-by-0 char", chars("")},
        {"empty string scalar", ValueArray::string(u"")},
        {"empty cell", ValueArray::cell(Dims{0, 0})},
        {"empty double", ValueArray()},
    };
    for (const auto& [name, message] : empties) {
        SCOPED_TRACE(name);
        EXPECT_MSGID(callBuiltin(&bnFullAssertFcn, 0, {ValueArray::logicalScalar(false), message}),
                     "ORRERY:assertion:emptyMessageNotAllowed");
    }
}

TEST(AssertBuiltin, FailedConditionRaisesTheMessageAsError) {
    const auto falseCondition = ValueArray::logicalScalar(false);
    EXPECT_MSGID(callBuiltin(&bnFullAssertFcn, 0, {falseCondition, chars("a:b")}),
                 "ORRERY:error:missingMessageArgument");
    const auto error = errorOf(&bnFullAssertFcn, {falseCondition, chars("a:b"), chars("n=%d"), ValueArray::scalar(4)});
    EXPECT_EQ(error.identifier(), "a:b");
    EXPECT_EQ(messageOf(error), "n=4");
    EXPECT_EQ(error.functionName(), "assert");
    EXPECT_EQ(errorOf(&bnFullAssertFcn, {falseCondition, structOf({{"message", chars("s")}})}).functionName(),
              "assert");
}
