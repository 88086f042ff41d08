// Tests of the catalogued exceptions, the raise path and the user error layer.
#include "tests/support/expect_error.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/qexception_envelope.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/call_stack.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

using namespace orrery;
using except::QException;

namespace {
ORRERY_MESSAGE_KEY(StackLine, "ORRERY:error:badStackLine", 0);
ORRERY_MESSAGE_KEY(Undefined, "ORRERY:undefinedFunction", 1);
// Declared with the count of its text, made below with a text where it takes a number.
ORRERY_MESSAGE_KEY(FieldSize, "ORRERY:sprintf:badFieldSize", 1);

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

// The text is made from the key's own copy of its arguments when first read, once:
// every read, every copy of the failure, every thread and the last-error record
// see the one text.
TEST(ThrowMessage, FormatsTheTextOnceWhenFirstRead) {
    const std::u16string expected = u"'caf\u00E9' is not a defined function or variable.";
    std::unique_ptr<except::IMsgIDException> caught;
    try {
        auto name = std::make_unique<std::u16string>(u"caf\u00E9");
        except::throwMessage(Undefined(*name));
    } catch (const except::IMsgIDException& failure) {
        caught = std::make_unique<except::IMsgIDException>(failure);
    }
    ASSERT_TRUE(caught);
    std::vector<const std::u16string*> read(4);
    std::vector<std::thread> readers;
    for (std::size_t i = 0; i < read.size(); ++i) readers.emplace_back([&, i] { read[i] = &caught->message(); });
    for (auto& reader : readers) reader.join();
    for (const std::u16string* text : read) EXPECT_EQ(text, &caught->message());
    EXPECT_EQ(caught->message(), expected);
    EXPECT_STREQ(caught->what(), "'caf\xC3\xA9' is not a defined function or variable.");
    const except::IMsgIDException copy = *caught;
    EXPECT_EQ(&copy.message(), &caught->message());
    caught.reset();
    EXPECT_EQ(QException::LastError::Get().message, expected);
}

// Raising does not format: a key whose arguments do not fit its text is raised as
// itself, and the mismatch shows only when the text is read.
TEST(ThrowMessage, RaisesTheKeyWithoutFormattingItsText) {
    try {
        except::throwMessage("ORRERY:a:b", FieldSize(u"wide"));
        FAIL() << "nothing raised";
    } catch (const except::MsgIDException<FieldSize>& failure) {
        EXPECT_EQ(failure.identifier(), "ORRERY:a:b");
        EXPECT_MSGID(static_cast<void>(failure.message()), "ORRERY:catalogue:argumentMismatch");
        EXPECT_STREQ(failure.what(), "(the catalogue text of this failure cannot be formatted)");
    }
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
