// Shared set-up of the warning tests: a fresh warning-manager context per test,
// printed warnings captured in a string, and a log double.
#pragma once

#include <orrery/console/console_capture.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/warning/warning_log.hpp>
#include <orrery/warning/warning_manager.hpp>
#include <orrery/warning/warning_operation.hpp>

#include <gmock/gmock.h>

#include <optional>

namespace orrery::warning::testing {

/// A log double: tests expect the catalogue-message operation; any other call fails.
class MockLog : public utWarningLog {
public:
    MOCK_METHOD(void, warn,
                (WarningManagerContext*, const std::optional<std::string>&, const catalogue::MessageContent&, bool),
                (override));
    void warn(WarningManagerContext*, const std::string&, const std::u16string&, std::va_list*, const std::u16string&,
              bool) override {
        ADD_FAILURE() << "unexpected log operation";
    }
    void warn(WarningManagerContext*, const std::string&, std::u16string_view, std::int32_t,
              const value::ValueArray* const*, const std::u16string&, bool) override {
        ADD_FAILURE();
    }
    void openLog(const std::u16string&) override { ADD_FAILURE() << "unexpected log operation"; }
    void closeLog(const std::u16string&) override { ADD_FAILURE() << "unexpected log operation"; }
};

/// Gives each test a virtual machine of its own, so a new context with the initial
/// states and modes, and collects printed warnings instead of writing them to
/// standard error. Logs set by the tests are not destroyed by their context.
class WarningTest : public ::testing::Test {
protected:
    void SetUp() override { freshContext(); }
    void TearDown() override {
        console_.reset();
        machine_.reset();
    }

    /// Replaces the machine, and so the context, by a new one.
    void freshContext() {
        utSetWarningLogDestroyFcn(nullptr);
        console_.reset();
        machine_.reset();
        machine_.emplace();
        console_.emplace();
        context = utGetWarningManagerContext();
    }

    /// What has been printed on the current machine's console so far; clears
    /// the capture. Warnings go to the error stream only.
    std::string takePrinted() {
        EXPECT_EQ(console_->output(), "");
        std::string printed = console_->error();
        console_->clear();
        return printed;
    }

    WarningManagerContext* context = nullptr;

private:
    std::optional<interp::VirtualMachineScope> machine_;
    std::optional<console::ConsoleCapture> console_;
};

}  // namespace orrery::warning::testing
