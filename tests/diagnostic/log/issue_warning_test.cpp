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
using lang::diagnostic::issueAndLogWarning;
using lang::diagnostic::Warning;
using lang::diagnostic::WarningLogXML;

namespace {

void issue(warning::WarningManagerContext* context, const std::string& identifier, const std::u16string& message) {
    const value::ValueArray argument = value::ValueArray::scalar(1);
    const value::ValueArray* values[] = {&argument};
    issueAndLogWarning(context, identifier, message, 1, values, message);
}

// Installs a factory and destroy function pair that count their calls; the
// previous pair comes back at the end.
class CountingLogFunctions {
public:
    explicit CountingLogFunctions(bool factoryFails = false)
        : previousFactory_(warning::utGetWarningLogFactoryFcn()),
          previousDestroy_(warning::utGetWarningLogDestroyFcn()) {
        made = 0;
        destroyed = 0;
        warning::utSetWarningLogFactoryFcn(factoryFails ? &failingFactory : &factory);
        warning::utSetWarningLogDestroyFcn(&destroy);
    }
    ~CountingLogFunctions() {
        warning::utSetWarningLogFactoryFcn(previousFactory_);
        warning::utSetWarningLogDestroyFcn(previousDestroy_);
    }
    CountingLogFunctions(const CountingLogFunctions&) = delete;
    CountingLogFunctions& operator=(const CountingLogFunctions&) = delete;

    static inline int made = 0;
    static inline int destroyed = 0;

private:
    static warning::utWarningLog* factory() {
        ++made;
        return new WarningLogXML();
    }
    static warning::utWarningLog* failingFactory() { return nullptr; }
    static void destroy(warning::utWarningLog* log) {
        ++destroyed;
        delete log;
    }
    warning::utWarningLogFactoryFcn previousFactory_;
    warning::utWarningLogDestroyFcn previousDestroy_;
};

// Removes a feature switch at the end of the scope.
class FeatureSwitch {
public:
    FeatureSwitch(std::string name, std::optional<bool> enabled) : name_(std::move(name)) {
        if (enabled) services::svSetFeature(name_, *enabled);
    }
    ~FeatureSwitch() { services::svUnregisterFeature(name_); }
    FeatureSwitch(const FeatureSwitch&) = delete;
    FeatureSwitch& operator=(const FeatureSwitch&) = delete;

private:
    std::string name_;
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

TEST(GetOrCreateWarningLog, MakesTheLogThroughTheInstalledFactoryAndTheContextDestroysIt) {
    const CountingLogFunctions functions;
    {
        interp::VirtualMachineScope machine;
        auto* context = machine.machine().warningManagerContext();
        auto* log = getOrCreateWarningLog(context);
        EXPECT_EQ(CountingLogFunctions::made, 1);
        EXPECT_EQ(getOrCreateWarningLog(context), log);
        EXPECT_EQ(CountingLogFunctions::made, 1);
        EXPECT_EQ(CountingLogFunctions::destroyed, 0);
    }
    EXPECT_EQ(CountingLogFunctions::destroyed, 1);
}

TEST_F(IssueAndLog, AFactoryThatFailsLeavesTheContextWithoutALogAndTheWarningIsStillShown) {
    const CountingLogFunctions functions(true);
    const console::ConsoleCapture console;
    issue(context(), "test:nolog", u"shown");
    EXPECT_EQ(warning::utGetWarningLog(context()), nullptr);
    EXPECT_EQ(console.error(), "Warning: shown\n");
    EXPECT_TRUE(signalled_.empty());
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

TEST_F(IssueAndLog, AWarningThatIsOffIsLoggedAsDisabledAndNotShown) {
    warning::utSetWarningStatus(context(), "test:quiet", warning::WarningState::Off);
    const console::ConsoleCapture console;
    issue(context(), "test:quiet", u"quiet");
    EXPECT_EQ(console.error(), "");
    ASSERT_EQ(signalled_.size(), 1U);
    EXPECT_TRUE(signalled_[0].getWasDisabled());
}

TEST_F(IssueAndLog, SuppressCommandLineOutputStopsPrintingButNotLogging) {
    struct Case {
        const char* what;
        std::optional<bool> enabled;
        bool printed;
    };
    getOrCreateWarningLog(context());  // its output filter is in place from now on
    for (const Case& c : {Case{"not registered", std::nullopt, true}, Case{"registered, off", false, true},
                          Case{"registered, on", true, false}}) {
        SCOPED_TRACE(c.what);
        signalled_.clear();
        const FeatureSwitch suppress("SuppressCommandLineOutput", c.enabled);
        const console::ConsoleCapture console;
        issue(context(), "test:suppress", u"suppressed?");
        EXPECT_EQ(console.error(), c.printed ? "Warning: suppressed?\n" : "");
        ASSERT_EQ(signalled_.size(), 1U);
        EXPECT_FALSE(signalled_[0].getWasDisabled());
    }
}
