// Tests of the catalogued exceptions, the raise path and the user error layer.
#include "tests/support/expect_error.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/qexception_envelope.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/text/text.hpp>

using namespace orrery;
using except::QException;

namespace {
ORRERY_MESSAGE_KEY(AnalyzerTooLong, "ORRERY:msgInputAnalyzer:identifierTooLong");
ORRERY_MESSAGE_KEY(StackLine, "ORRERY:error:badStackLine");
}  // namespace

TEST(MessageKey, SplitsIdentifierIntoComponentAndMnemonic) {
    const AnalyzerTooLong key(8191);
    EXPECT_EQ(key.component, "ORRERY:msgInputAnalyzer");
    EXPECT_EQ(key.mnemonic, "identifierTooLong");
    ASSERT_EQ(key.arguments.size(), 1u);
    EXPECT_EQ(std::get<double>(key.arguments[0]), 8191.0);
}

TEST(ThrowMessage, RaisesTheKeysOwnTypeAndIdentifier) {
    EXPECT_THROW(except::throwMessage(StackLine()), except::MsgIDException<StackLine>);
    EXPECT_MSGID(except::throwMessage(StackLine()), "ORRERY:error:badStackLine");
}

TEST(ThrowMessage, ExplicitIdentifierKeepsTheKeysText) {
    try {
        except::throwMessage("ORRERY:error:identifierTooLong", AnalyzerTooLong(8191));
        FAIL();
    } catch (const except::IMsgIDException& failure) {
        EXPECT_EQ(failure.identifier(), "ORRERY:error:identifierTooLong");
        EXPECT_EQ(failure.key().identifier(), "ORRERY:msgInputAnalyzer:identifierTooLong");
        EXPECT_NE(std::string(failure.what()).find("8191"), std::string::npos);
        EXPECT_TRUE(failure.is("ORRERY:error:identifierTooLong"));
    }
}

TEST(ThrowMessage, ReportsToTheLegacyLayerBeforeThrowing) {
    std::string reported;
    auto previous = except::setLegacyErrorListener([&](const except::IMsgIDException& f) { reported = f.identifier(); });
    EXPECT_ANY_THROW(except::throwMessage(StackLine()));
    except::setLegacyErrorListener(previous);
    EXPECT_EQ(reported, "ORRERY:error:badStackLine");
    EXPECT_EQ(QException::LastError::Get().identifier, "ORRERY:error:badStackLine");
    EXPECT_FALSE(QException::LastError::Get().stack.has_value());
}

TEST(ArgumentErrors, CheckOutputsBeforeInputs) {
    struct Case { int nlhs, maxOut, nrhs, minIn, maxIn; const char* id; };
    const Case cases[] = {
        {1, 0, 5, 0, 0, "ORRERY:tooManyOutputs"},
        {0, 0, 2, 0, 1, "ORRERY:tooManyInputs"},
        {0, 0, 0, 1, 3, "ORRERY:notEnoughInputs"},
        {0, 0, -1, 0, 0, "ORRERY:notEnoughInputs"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.id);
        EXPECT_MSGID(except::checkArgumentCounts(c.nlhs, c.maxOut, c.nrhs, c.minIn, c.maxIn), c.id);
    }
    EXPECT_NO_THROW(except::checkArgumentCounts(2, 2, 1, 1, 1));
    EXPECT_MSGID(except::throwInvalidInput(), "ORRERY:invalidInput");
}

TEST(QExceptionEnvelope, RaisesWithGivenStackAndFunctionName) {
    auto stack = value::ValueArray::stackStructure(0);
    except::QExceptionEnvelope envelope("ORRERY:a:b", u"m\u00E9ssage", stack, 1);
    envelope.SetFuncName("assert");
    try {
        envelope.DoThrow();
    } catch (const QException& error) {
        EXPECT_EQ(error.identifier(), "ORRERY:a:b");
        EXPECT_EQ(error.message(), u"m\u00E9ssage");
        EXPECT_STREQ(error.what(), "m\xC3\xA9ssage");
        EXPECT_EQ(error.functionName(), "assert");
        EXPECT_TRUE(error.stack().sharesDataWith(stack));
    }
}

TEST(QExceptionEnvelope, SuppliesTheCurrentStackWhenNoneIsGiven) {
    interp::FrameGuard outer({u"/s/outer.orr", u"outer", 3});
    interp::FrameGuard inner({u"/s/inner.orr", u"inner", 9});
    except::QExceptionEnvelope envelope("", u"x", std::nullopt, 1);
    try {
        envelope.DoThrow();
    } catch (const QException& error) {
        ASSERT_EQ(error.stack().dims(), (value::Dims{2, 1}));
        EXPECT_EQ(error.stack().field(0, "name")->text(), u"inner");
        EXPECT_EQ(error.stack().field(1, "line")->realAt(0), 3.0);
    }
}

TEST(QExceptionEnvelope, FromCatalogueMessageUsesItsText) {
    except::QExceptionEnvelope envelope(catalogue::MessageContent{"ORRERY:assertion:failed", {}});
    EXPECT_QEXCEPTION(envelope.DoThrow(), "ORRERY:assertion:failed", "Assertion failed.");
}

TEST(LastError, SetReplacesTheWholeRecord) {
    QException::LastError::Set("a:b", u"one", value::ValueArray::stackStructure(1));
    QException::LastError::Set("", u"two", std::nullopt);
    const auto record = QException::LastError::Get();
    EXPECT_EQ(record.identifier, "");
    EXPECT_EQ(record.message, u"two");
    EXPECT_FALSE(record.stack.has_value());
}
