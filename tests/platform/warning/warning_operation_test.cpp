// Tests of the interpreter's warning operation: states, filters, the printed
// lines, the last printed identifier and catalogue warnings.
#include "warning_fixture.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/interp/call_stack.hpp>

#include <memory>

using namespace orrery;
using namespace orrery::warning;
using WarningOperation = warning::testing::WarningTest;

namespace {
constexpr const char* kUnchanged = "earlier:printed";
}  // namespace

TEST_F(WarningOperation, StateDecidesBetweenPrintingAndDisabling) {
    struct Case {
        const char* label;
        std::string identifier;
        const char* stateHolder;  // identifier given an own state, or none
        int ownState;
        int defaultState;
        bool disabled;
    };
    const Case cases[] = {
        {"default on", "a:b", nullptr, 0, kWarningOn, false},
        {"default off", "a:b", nullptr, 0, kWarningOff, true},
        {"own on beats default off", "a:b", "a:b", kWarningOn, kWarningOff, false},
        {"own off beats default on", "a:b", "a:b", kWarningOff, kWarningOn, true},
        {"another identifier's state does not apply", "a:c", "a:b", kWarningOff, kWarningOn, false},
        {"empty identifier takes default off", "", nullptr, 0, kWarningOff, true},
        {"empty identifier ignores a state stored under empty", "", "", kWarningOff, kWarningOn, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        freshContext();
        utSetWarningStatus(context, "ALL", c.defaultState);
        if (c.stateHolder != nullptr) utSetWarningStatus(context, c.stateHolder, c.ownState);
        utSetLastPrintedWarningId(context, kUnchanged);

        EXPECT_EQ(issueWarningWithoutLogging(context, c.identifier, u"value 5"), c.disabled);
        EXPECT_EQ(takePrinted(), c.disabled ? "" : "Warning: value 5\n");
        EXPECT_EQ(utGetLastPrintedWarningId(context), c.disabled ? kUnchanged : c.identifier);
    }
}

TEST_F(WarningOperation, ErrorStateRaisesTheUserErrorInsteadOfPrinting) {
    utSetWarningStatus(context, "a:b", kWarningError);
    utSetLastPrintedWarningId(context, kUnchanged);
    EXPECT_QEXCEPTION(issueWarningWithoutLogging(context, "a:b", u"value 5"), "a:b", "value 5");
    EXPECT_EQ(takePrinted(), "");
    EXPECT_EQ(utGetLastPrintedWarningId(context), kUnchanged);

    // An own "on" state escapes an "error" default; other identifiers do not.
    utSetWarningStatus(context, "all", kWarningError);
    utSetWarningStatus(context, "a:b", kWarningOn);
    EXPECT_FALSE(issueWarningWithoutLogging(context, "a:b", u"kept"));
    EXPECT_EQ(takePrinted(), "Warning: kept\n");
    EXPECT_QEXCEPTION(issueWarningWithoutLogging(context, "", u"no id"), "", "no id");
}

TEST_F(WarningOperation, FiltersRunNewestFirstAndTheFirstRefusalSuppresses) {
    std::vector<std::string> order;
    WarningFilter older([&](std::u16string& text) {
        order.push_back("older");
        text += u"!";
        return true;
    });
    bool suppress = false;
    WarningFilter newer([&](std::u16string& text) {
        order.push_back("newer");
        text = u"[" + text + u"]";
        return !suppress;
    });

    EXPECT_FALSE(issueWarningWithoutLogging(context, "a:b", u"text"));
    EXPECT_EQ(takePrinted(), "Warning: [text]!\n");
    EXPECT_EQ(order, (std::vector<std::string>{"newer", "older"}));

    suppress = true;
    order.clear();
    utSetLastPrintedWarningId(context, kUnchanged);
    EXPECT_FALSE(issueWarningWithoutLogging(context, "c:d", u"text")) << "suppressed is still not disabled";
    EXPECT_EQ(takePrinted(), "");
    EXPECT_EQ(utGetLastPrintedWarningId(context), kUnchanged);
    EXPECT_EQ(order, (std::vector<std::string>{"newer"}));
}

TEST_F(WarningOperation, DestroyingAFilterRemovesOnlyItsOwnRegistration) {
    int counted = 0;
    auto silencer = std::make_unique<WarningFilter>([](std::u16string&) { return false; });
    auto counter = std::make_unique<WarningFilter>([&](std::u16string&) {
        ++counted;
        return true;
    });
    const WarningFilter passThrough{WarningFilterFunction()};

    issueWarningWithoutLogging(context, "a:b", u"hidden");
    EXPECT_EQ(takePrinted(), "");

    silencer.reset();  // older than counter: popped out of order
    issueWarningWithoutLogging(context, "a:b", u"shown");
    EXPECT_EQ(takePrinted(), "Warning: shown\n");
    EXPECT_EQ(counted, 2);

    counter.reset();
    issueWarningWithoutLogging(context, "a:b", u"shown");
    EXPECT_EQ(counted, 2);
}

TEST_F(WarningOperation, ModesAddLocationAndHintLines) {
    struct Case {
        const char* label;
        bool backtrace;
        bool verbose;
        bool frames;
        std::string identifier;
        std::string expected;
    };
    const std::string hint = "(Type \"warning off a:b\" to suppress this warning.)\n";
    const Case cases[] = {
        {"backtrace names the innermost frame", true, false, true, "a:b", "Warning: m\n> In fname (line 12)\n"},
        {"backtrace off", false, false, true, "a:b", "Warning: m\n"},
        {"backtrace with an empty stack", true, false, false, "a:b", "Warning: m\n"},
        {"verbose adds the hint", false, true, false, "a:b", "Warning: m\n" + hint},
        {"verbose without identifier", false, true, true, "", "Warning: m\n"},
        {"both: location, then hint", true, true, true, "a:b", "Warning: m\n> In fname (line 12)\n" + hint},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        utSetWarningMode(context, kModeBacktrace, c.backtrace);
        utSetWarningMode(context, kModeVerbose, c.verbose);
        std::optional<interp::FrameGuard> outer, inner;
        if (c.frames) {
            outer.emplace(interp::StackEntry{u"/s/outer.orr", u"outer", 3});
            inner.emplace(interp::StackEntry{u"/s/f.orr", u"fname", 7});
            interp::setCurrentLine(12);
        }
        issueWarningWithoutLogging(context, c.identifier, u"m");
        EXPECT_EQ(takePrinted(), c.expected);
    }
}

TEST_F(WarningOperation, InvalidTextIsPrintedWithReplacementCharacters) {
    utSetWarningMode(context, kModeVerbose, true);
    const std::u16string message = u"lone \xD800 surrogate";
    const std::string identifier = "bad\xFF:id";

    EXPECT_FALSE(issueWarningWithoutLogging(context, identifier, message));
    EXPECT_EQ(takePrinted(),
              "Warning: lone \xEF\xBF\xBD surrogate\n"
              "(Type \"warning off bad\xEF\xBF\xBD:id\" to suppress this warning.)\n");
    EXPECT_EQ(utGetLastPrintedWarningId(context), identifier);

    utSetWarningStatus(context, identifier, kWarningError);
    try {
        issueWarningWithoutLogging(context, identifier, message);
        ADD_FAILURE() << "expected a user error";
    } catch (const except::QException& error) {
        EXPECT_EQ(error.identifier(), identifier);
        EXPECT_EQ(error.message(), message);
    }
}

TEST_F(WarningOperation, WithoutAContextTheWarningIsPrintedPlainly) {
    const interp::FrameGuard frame(interp::StackEntry{u"/s/f.orr", u"fname", 12});
    EXPECT_FALSE(issueWarningWithoutLogging(nullptr, "a:b", u"m"));
    EXPECT_EQ(takePrinted(), "Warning: m\n");
}

TEST_F(WarningOperation, CatalogueWarningReachesTheLogWithTheDisabledAnswer) {
    const catalogue::MessageContent content{"ORRERY:lastwarn:badMessageIdentifier", {std::u16string(u"x y")}};
    const std::string text =
        "'x y' is not a valid message identifier. An identifier has two or more components separated by "
        "colons, each starting with a letter.";
    struct Case {
        const char* label;
        int state;
        std::string printed;
    };
    const Case cases[] = {{"on", kWarningOn, "Warning: " + text + "\n"}, {"off", kWarningOff, ""}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        warning::testing::RecordingLog log;
        utSetWarningLog(context, &log);
        utSetWarningStatus(context, content.identifier, c.state);

        issueCatalogueWarning(context, content);
        EXPECT_EQ(takePrinted(), c.printed);
        ASSERT_EQ(log.catalogueCalls.size(), 1u);
        const auto& call = log.catalogueCalls.front();
        EXPECT_EQ(call.context, context);
        EXPECT_EQ(call.identifier, std::nullopt);
        EXPECT_EQ(call.message.identifier, content.identifier);
        EXPECT_EQ(call.message.arguments, content.arguments);
        EXPECT_EQ(call.wasDisabled, c.state == kWarningOff);
        EXPECT_EQ(log.otherCalls, 0);
        utSetWarningLog(context, nullptr);
    }
}

TEST_F(WarningOperation, CatalogueWarningInErrorStateRaisesBeforeLogging) {
    warning::testing::RecordingLog log;
    utSetWarningLog(context, &log);
    utSetWarningStatus(context, "ORRERY:warning:inputsOutOfOrder", kWarningError);
    try {
        issueCatalogueWarning(context, catalogue::MessageContent{"ORRERY:warning:inputsOutOfOrder", {}});
        ADD_FAILURE() << "expected a user error";
    } catch (const except::QException& error) {
        EXPECT_EQ(error.identifier(), "ORRERY:warning:inputsOutOfOrder");
        EXPECT_NE(std::string(error.what()).find("reverse order"), std::string::npos) << error.what();
    }
    EXPECT_TRUE(log.catalogueCalls.empty());

    utSetWarningLog(context, nullptr);
    utSetWarningStatus(context, "ORRERY:warning:inputsOutOfOrder", kWarningOn);
    issueCatalogueWarning(context, catalogue::MessageContent{"ORRERY:warning:inputsOutOfOrder", {}});
    EXPECT_NE(takePrinted().find("reverse order"), std::string::npos) << "printed without a log";
}
