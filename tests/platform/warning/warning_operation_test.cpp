// Tests of the interpreter's warning operation: states, filters, the printed
// lines, the last printed identifier and catalogue warnings.
#include "warning_fixture.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/virtual_machine.hpp>

#include <memory>

using namespace orrery;
using namespace orrery::warning;
using WarningOperation = warning::testing::WarningTest;

constexpr const char* kUnchanged = "earlier:printed";

TEST_F(WarningOperation, StateDecidesBetweenPrintingDisablingAndRaising) {
    // holder: the identifier given an own state, or none. outcome: 'p'rinted, 'd'isabled or 'e'rror.
    struct Case {
        const char* label;
        std::string identifier;
        const char* holder;
        WarningState own, all;
        char outcome;
    };
    const Case cases[] = {
        {"default off", "a:b", nullptr, WarningState::On, WarningState::Off, 'd'},
        {"own on beats default off", "a:b", "a:b", WarningState::On, WarningState::Off, 'p'},
        {"own off beats default on", "a:b", "a:b", WarningState::Off, WarningState::On, 'd'},
        {"another identifier's state does not apply", "a:c", "a:b", WarningState::Off, WarningState::On, 'p'},
        {"empty identifier ignores a state stored under empty", "", "", WarningState::Off, WarningState::On, 'p'},
        {"own error", "a:b", "a:b", WarningState::Error, WarningState::On, 'e'},
        {"own on escapes default error", "a:b", "a:b", WarningState::On, WarningState::Error, 'p'},
        {"empty identifier takes default error", "", nullptr, WarningState::On, WarningState::Error, 'e'},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.label);
        freshContext();
        utSetWarningStatus(context, "ALL", c.all);
        if (c.holder != nullptr) utSetWarningStatus(context, c.holder, c.own);
        utSetLastPrintedWarningId(context, kUnchanged);
        if (c.outcome == 'e') {
            EXPECT_QEXCEPTION(issueWarningWithoutLogging(context, c.identifier, u"value 5"), c.identifier, "value 5");
        } else {
            EXPECT_EQ(issueWarningWithoutLogging(context, c.identifier, u"value 5"), c.outcome == 'd');
        }
        EXPECT_EQ(takePrinted(), c.outcome == 'p' ? "Warning: value 5\n" : "");
        EXPECT_EQ(utGetLastPrintedWarningId(context), c.outcome == 'p' ? c.identifier : kUnchanged);
    }
}

TEST_F(WarningOperation, FiltersRunNewestFirstUntilOneRefusesAndLastAsLongAsTheirGuard) {
    // Destroying a filter removes only its own registration, in any order.
    int counted = 0;
    auto silencer = std::make_unique<WarningFilter>([](std::u16string&) { return false; });
    auto counter = std::make_unique<WarningFilter>([&](std::u16string&) { return ++counted > 0; });
    issueWarningWithoutLogging(context, "a:b", u"hidden");
    EXPECT_EQ(takePrinted(), "");
    silencer.reset();  // older than counter: removed out of order
    issueWarningWithoutLogging(context, "a:b", u"shown");
    EXPECT_EQ(takePrinted(), "Warning: shown\n");
    counter.reset();
    issueWarningWithoutLogging(context, "a:b", u"shown");
    EXPECT_EQ(takePrinted(), "Warning: shown\n");
    EXPECT_EQ(counted, 2);

    // Filters run newest first, may change the text, and the first refusal suppresses.
    std::string order;
    const WarningFilter older([&](std::u16string& text) {
        order += "o";
        text += u"!";
        return true;
    });
    bool suppress = false;
    const WarningFilter newer([&](std::u16string& text) {
        order += "n";
        text = u"[" + text + u"]";
        return !suppress;
    });
    const WarningFilter passThrough{WarningFilterFunction()};
    EXPECT_FALSE(issueWarningWithoutLogging(context, "a:b", u"text"));
    EXPECT_EQ(takePrinted(), "Warning: [text]!\n");
    suppress = true;
    utSetLastPrintedWarningId(context, kUnchanged);
    EXPECT_FALSE(issueWarningWithoutLogging(context, "c:d", u"text")) << "suppressed is still not disabled";
    EXPECT_EQ(takePrinted(), "");
    EXPECT_EQ(utGetLastPrintedWarningId(context), kUnchanged);
    EXPECT_EQ(order, "non");
}

TEST_F(WarningOperation, FiltersBelongToTheMachineThatRegisteredThem) {
    const auto refuse = [](std::u16string&) { return false; };
    auto silencer = std::make_unique<WarningFilter>(refuse);
    {
        const interp::VirtualMachineScope other;
        const console::ConsoleCapture otherConsole;
        EXPECT_FALSE(issueWarningWithoutLogging(utGetWarningManagerContext(), "a:b", u"elsewhere"));
        EXPECT_EQ(otherConsole.error(), "Warning: elsewhere\n") << "another machine's filter does not apply";
        const WarningFilter otherSilencer(refuse);
        silencer.reset();  // leaves its own machine, not the current one
        issueWarningWithoutLogging(utGetWarningManagerContext(), "a:b", u"still silenced");
        EXPECT_EQ(otherConsole.error(), "Warning: elsewhere\n");
    }
    EXPECT_EQ(takePrinted(), "") << "each machine prints on its own console";
    issueWarningWithoutLogging(context, "a:b", u"shown");
    EXPECT_EQ(takePrinted(), "Warning: shown\n");
}

TEST_F(WarningOperation, ModesAddLocationAndHintLines) {
    const std::string location = "> In fname (line 12)\n";
    const std::string hint = "(Type \"warning off a:b\" to suppress this warning.)\n";
    struct Case {
        bool backtrace, verbose;
        std::string identifier;
        std::u16string message;
        std::string expected;
    };
    const Case cases[] = {
        {true, false, "a:b", u"m", "Warning: m\n" + location},
        {false, false, "a:b", u"m", "Warning: m\n"},
        {false, true, "a:b", u"m", "Warning: m\n" + hint},
        {false, true, "", u"m", "Warning: m\n"},
        {true, true, "a:b", u"m", "Warning: m\n" + location + hint},
        // Text that is not valid UTF is printed with replacement characters.
        {false, true, "bad\xFF:id", u"lone \xD800 surrogate",
         "Warning: lone \xEF\xBF\xBD surrogate\n(Type \"warning off bad\xEF\xBF\xBD:id\" to suppress this warning.)\n"},
    };
    // With backtrace on, an empty stack adds no location line.
    issueWarningWithoutLogging(context, "a:b", u"m");
    EXPECT_EQ(takePrinted(), "Warning: m\n");
    const interp::FrameGuard outer(interp::StackEntry{u"/s/outer.orr", u"outer", 3});
    const interp::FrameGuard inner(interp::StackEntry{u"/s/f.orr", u"fname", 7});
    interp::setCurrentLine(12);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.expected);
        utSetWarningMode(context, WarningMode::Backtrace, c.backtrace);
        utSetWarningMode(context, WarningMode::Verbose, c.verbose);
        EXPECT_FALSE(issueWarningWithoutLogging(context, c.identifier, c.message));
        EXPECT_EQ(takePrinted(), c.expected);
    }
    // Without a context the warning is printed plainly.
    EXPECT_FALSE(issueWarningWithoutLogging(nullptr, "a:b", u"m"));
    EXPECT_EQ(takePrinted(), "Warning: m\n");
}

TEST_F(WarningOperation, CatalogueWarningReachesTheLogWithTheDisabledAnswerUnlessItRaises) {
    const catalogue::MessageContent content{"ORRERY:lastwarn:badMessageIdentifier", {std::u16string(u"x y")}};
    const std::string text =
        "'x y' is not a valid message identifier. An identifier has two or more components separated by "
        "colons, each starting with a letter.";
    issueCatalogueWarning(context, content);  // without a log it is only printed
    EXPECT_EQ(takePrinted(), "Warning: " + text + "\n");
    for (const WarningState state : {WarningState::On, WarningState::Off}) {
        SCOPED_TRACE(static_cast<int>(state));
        ::testing::StrictMock<warning::testing::MockLog> log;
        EXPECT_CALL(log, warn(context, std::optional<std::string>(),
                              AllOf(::testing::Field(&catalogue::MessageContent::identifier, content.identifier),
                                    ::testing::Field(&catalogue::MessageContent::arguments, content.arguments)),
                              state == WarningState::Off));
        utSetWarningLog(context, &log);
        utSetWarningStatus(context, content.identifier, state);
        issueCatalogueWarning(context, content);
        EXPECT_EQ(takePrinted(), state == WarningState::On ? "Warning: " + text + "\n" : "");
        utSetWarningLog(context, nullptr);
    }
    ::testing::StrictMock<warning::testing::MockLog> log;  // receives nothing
    utSetWarningLog(context, &log);
    utSetWarningStatus(context, content.identifier, WarningState::Error);
    EXPECT_QEXCEPTION(issueCatalogueWarning(context, content), content.identifier, text.c_str());
}
