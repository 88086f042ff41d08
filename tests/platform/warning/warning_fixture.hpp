// Shared set-up of the warning tests: a fresh warning-manager context per test,
// printed warnings captured in a string, and a log that records what it receives.
#pragma once

#include <orrery/warning/warning_log.hpp>
#include <orrery/warning/warning_manager.hpp>
#include <orrery/warning/warning_operation.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace orrery::warning::testing {

/// One call of the catalogue-message operation of a log.
struct CatalogueWarnCall {
    WarningManagerContext* context;
    std::optional<std::string> identifier;
    catalogue::MessageContent message;
    bool wasDisabled;
};

/// A log that records catalogue warnings and counts every other operation.
class RecordingLog : public utWarningLog {
public:
    void warn(WarningManagerContext* context, const std::optional<std::string>& identifier,
              const catalogue::MessageContent& message, bool wasDisabled) override {
        catalogueCalls.push_back({context, identifier, message, wasDisabled});
    }
    void warn(WarningManagerContext*, const std::string&, const std::u16string&, std::va_list*,
              const std::u16string&, bool) override {
        ++otherCalls;
    }
    void warn(WarningManagerContext*, const std::string&, const std::u16string&, std::int32_t,
              const value::ValueArray* const*, const std::u16string&, bool) override {
        ++otherCalls;
    }
    void openLog(const std::u16string&) override { ++otherCalls; }
    void closeLog(const std::u16string&) override { ++otherCalls; }

    std::vector<CatalogueWarnCall> catalogueCalls;
    int otherCalls = 0;
};

/// Gives each test a new context with the initial states and modes, and collects
/// printed warnings instead of writing them to standard error.
class WarningTest : public ::testing::Test {
protected:
    void SetUp() override {
        freshContext();
        previousOutput_ = setWarningOutput(&output_);
    }
    void TearDown() override {
        setWarningOutput(previousOutput_);
        utSetWarningLog(context, nullptr);
        utSetWarningLogFactoryFcn(nullptr);
        utSetWarningLogDestroyFcn(nullptr);
    }

    /// Replaces the context by a new one (no log is destroyed with the old one).
    void freshContext() {
        utSetWarningLogDestroyFcn(nullptr);
        utSetWarningManagerContextPresent(false);
        utSetWarningManagerContextPresent(true);
        context = utGetWarningManagerContext();
    }

    /// What has been printed so far; clears the capture.
    std::string takePrinted() {
        std::string printed = output_.str();
        output_.str({});
        return printed;
    }

    WarningManagerContext* context = nullptr;

private:
    std::ostringstream output_;
    std::ostream* previousOutput_ = nullptr;
};

}  // namespace orrery::warning::testing
