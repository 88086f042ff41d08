// Tests of issuing a warning and handing it to the context's log, made first
// when the context has none.
#include "diagnostic/log/issue_warning.hpp"
#include "diagnostic/log/warning_log_xml.hpp"
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/services/services.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using namespace orrery;
using lang::diagnostic::getOrCreateWarningLog;
using lang::diagnostic::Warning;
using lang::diagnostic::WarningLogXML;

namespace {

void issue(warning::WarningManagerContext* context, const std::string& identifier, const std::u16string& message) {
    const value::ValueArray argument = value::ValueArray::scalar(1);
    const value::ValueArray* values[] = {&argument};
    lang::diagnostic::issueAndLogWarning(context, identifier, message, 1, values, message);
}

// Installs a factory, failing or not, and a destroy function that count their
// calls; the previous pair comes back at the end.
struct CountingLogFunctions {
    explicit CountingLogFunctions(bool factoryFails) {
        made = destroyed = 0;
        fails = factoryFails;
        warning::utSetWarningLogFactoryFcn([]() -> warning::utWarningLog* {
            ++made;
            return fails ? nullptr : new WarningLogXML();
        });
        warning::utSetWarningLogDestroyFcn([](warning::utWarningLog* log) {
            ++destroyed;
            delete log;
        });
    }
    ~CountingLogFunctions() {
        warning::utSetWarningLogFactoryFcn(previousFactory);
        warning::utSetWarningLogDestroyFcn(previousDestroy);
    }
    static inline int made = 0;
    static inline int destroyed = 0;
    static inline bool fails = false;
    warning::utWarningLogFactoryFcn previousFactory = warning::utGetWarningLogFactoryFcn();
    warning::utWarningLogDestroyFcn previousDestroy = warning::utGetWarningLogDestroyFcn();
};

// A fresh interpreter instance whose issued warnings are collected.
class IssueAndLog : public ::testing::Test {
protected:
    void SetUp() override {
        connection_ = builtins::connectIssuedWarningCallback([this](const Warning& w) { signalled_.push_back(w); });
    }
    warning::WarningManagerContext* context() { return machine_.machine().warningManagerContext(); }

    interp::VirtualMachineScope machine_;
    std::vector<Warning> signalled_;
    boost::signals2::scoped_connection connection_;
};

}  // namespace

TEST_F(IssueAndLog, MakesAndInstallsALogWhenTheContextHasNone) {
    ASSERT_EQ(warning::utGetWarningLog(context()), nullptr);
    const console::ConsoleCapture console;
    issue(context(), "test:first", u"first");
    auto* log = warning::utGetWarningLog(context());
    EXPECT_NE(dynamic_cast<WarningLogXML*>(log), nullptr);
    EXPECT_EQ(console.error(), "Warning: first\n");
    ASSERT_EQ(signalled_.size(), 1U);
    EXPECT_EQ(signalled_[0].getFormat(), u"first");
    EXPECT_EQ(signalled_[0].getArguments().size(), 1U);

    issue(context(), "test:second", u"second");
    EXPECT_EQ(warning::utGetWarningLog(context()), log);
    EXPECT_EQ(signalled_.size(), 2U);
}

TEST_F(IssueAndLog, AFactoryThatFailsLeavesNoLogAndTheWarningIsStillShown) {
    const CountingLogFunctions functions(true);
    const console::ConsoleCapture console;
    issue(context(), "test:nolog", u"shown");
    EXPECT_EQ(warning::utGetWarningLog(context()), nullptr);
    EXPECT_EQ(console.error(), "Warning: shown\n");
    EXPECT_TRUE(signalled_.empty());
}

TEST(GetOrCreateWarningLog, MakesTheLogOnceThroughTheInstalledFactoryAndTheContextDestroysIt) {
    const CountingLogFunctions functions(false);
    {
        interp::VirtualMachineScope machine;
        auto* context = machine.machine().warningManagerContext();
        EXPECT_EQ(getOrCreateWarningLog(context), getOrCreateWarningLog(context));
        EXPECT_EQ(CountingLogFunctions::made, 1);
        EXPECT_EQ(CountingLogFunctions::destroyed, 0);
    }
    EXPECT_EQ(CountingLogFunctions::destroyed, 1);
}

TEST_F(IssueAndLog, AWarningInTheErrorStateRaisesAndIsNotLogged) {
    warning::utSetWarningStatus(context(), "test:fatal", warning::WarningState::Error);
    warning::utSetLastWarningMsg(context(), "test:before", u"before");
    EXPECT_THROW(issue(context(), "test:fatal", u"fatal"), except::QException);
    EXPECT_TRUE(signalled_.empty());
    std::u16string message;
    std::string identifier;
    warning::utGetLastWarningMsg(context(), message, identifier);
    EXPECT_EQ(identifier, "test:before");
}

// A warning that is off is logged as disabled and not shown; the switch
// "SuppressCommandLineOutput", registered and on, stops printing but not logging.
TEST_F(IssueAndLog, OffWarningsAndSuppressCommandLineOutputStopPrintingButNotLogging) {
    struct Case {
        const char* what;
        warning::WarningState state;
        std::optional<bool> suppress;
        bool printed;
    };
    getOrCreateWarningLog(context());  // its output filter is in place from now on
    for (const Case& c : {Case{"switch not registered", warning::WarningState::On, std::nullopt, true},
                          Case{"switch off", warning::WarningState::On, false, true},
                          Case{"switch on", warning::WarningState::On, true, false},
                          Case{"warning off", warning::WarningState::Off, std::nullopt, false}}) {
        SCOPED_TRACE(c.what);
        signalled_.clear();
        warning::utSetWarningStatus(context(), "test:suppress", c.state);
        if (c.suppress) services::svSetFeature("SuppressCommandLineOutput", *c.suppress);
        const console::ConsoleCapture console;
        issue(context(), "test:suppress", u"suppressed?");
        services::svUnregisterFeature("SuppressCommandLineOutput");
        EXPECT_EQ(console.error(), c.printed ? "Warning: suppressed?\n" : "");
        ASSERT_EQ(signalled_.size(), 1U);
        EXPECT_EQ(signalled_[0].getWasDisabled(), c.state == warning::WarningState::Off);
    }
}
