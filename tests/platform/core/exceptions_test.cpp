// Tests of the catalogued exceptions, the raise path and the user error layer.
#include "tests/support/expect_error.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/qexception_envelope.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/call_stack.hpp>

#include <cstddef>
#include <string>
#include <type_traits>

using namespace orrery;
using except::QException;

namespace {
ORRERY_MESSAGE_KEY(StackLine, "ORRERY:error:badStackLine", 0);

// A key is made with exactly the arguments its declaration counts.
using except::host::NestedTooDeep;  // one argument: the depth limit
static_assert(std::is_constructible_v<StackLine> && !std::is_constructible_v<StackLine, std::u16string>);
static_assert(std::is_constructible_v<NestedTooDeep, std::size_t>);
static_assert(!std::is_constructible_v<NestedTooDeep>);
static_assert(!std::is_constructible_v<NestedTooDeep, std::size_t, std::u16string>);
}  // namespace

TEST(ThrowMessage, RaisesTheKeysOwnTypeAfterReportingToTheLegacyLayer) {
    std::string reported;
    auto previous = except::setLegacyErrorListener([&](const auto& failure) { reported = failure.identifier(); });
    EXPECT_THROW(except::throwMessage(StackLine()), except::MsgIDException<StackLine>);
    except::setLegacyErrorListener(previous);
    EXPECT_EQ(reported, "ORRERY:error:badStackLine");
    EXPECT_EQ(QException::LastError::Get().identifier, "ORRERY:error:badStackLine");
    EXPECT_FALSE(QException::LastError::Get().stack.has_value());
}

TEST(ArgumentErrors, CheckOutputsBeforeInputs) {
    struct Case {
        int nlhs, maxOut, nrhs, minIn, maxIn;
        const char* id;
    };
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

// The module's error tests cover an envelope with a given stack and function name.
TEST(QExceptionEnvelope, SuppliesTheCurrentStackWhenNoneIsGiven) {
    interp::FrameGuard outer({u"/s/outer.orr", u"outer", 3});
    interp::FrameGuard inner({u"/s/inner.orr", u"inner", 9});
    try {
        except::QExceptionEnvelope("ORRERY:a:b", u"m\u00E9ssage", std::nullopt, 1).DoThrow();
        FAIL() << "DoThrow returned";
    } catch (const QException& error) {
        EXPECT_STREQ(error.what(), "m\xC3\xA9ssage");
        ASSERT_EQ(error.stack().dims(), (value::Dims{2, 1}));
        EXPECT_EQ(error.stack().field(0, "name")->text(), u"inner");
        EXPECT_EQ(error.stack().field(1, "line")->realAt(0), 3.0);
    }
}

TEST(QExceptionEnvelope, FromCatalogueMessageUsesItsText) {
    except::QExceptionEnvelope envelope(catalogue::MessageContent{"ORRERY:assertion:failed", {}});
    EXPECT_QEXCEPTION(envelope.DoThrow(), "ORRERY:assertion:failed", "Assertion failed.");
}
