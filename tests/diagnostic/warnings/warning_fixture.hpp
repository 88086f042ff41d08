// Shared set-up of the warning built-in tests: a fresh virtual machine (so a
// fresh warning manager context) per test, its console captured, and readers of
// the state structures the built-ins return.
#pragma once

#include "diagnostic/warnings/warning_builtins.hpp"

#include "tests/support/builtin_call.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace orrery::testing {

/// One row of a state structure: identifier and state.
using StateRow = std::pair<std::string, std::string>;

/// The rows of a state structure, in linear order.
inline std::vector<StateRow> rowsOf(const value::ValueArray& states) {
    EXPECT_EQ(states.fieldNames(), (std::vector<std::string>{"identifier", "state"}));
    std::vector<StateRow> rows;
    for (std::size_t i = 0; i < states.numel(); ++i)
        rows.emplace_back(states.field(i, "identifier")->textUtf8(), states.field(i, "state")->textUtf8());
    return rows;
}

class WarningBuiltinTest : public ::testing::Test {
protected:
    void SetUp() override {
        machine_.emplace();
        console_.emplace();
        context = warning::utGetWarningManagerContext();
    }
    void TearDown() override {
        console_.reset();
        machine_.reset();
    }

    /// warning(inputs...) with nlhs outputs.
    static std::vector<value::ValueArrayPtr> warningCall(std::int32_t nlhs,
                                                         std::initializer_list<value::ValueArray> inputs) {
        return callBuiltin(&bnFullWarningFcn, nlhs, inputs);
    }

    /// What went to standard output since the last take.
    std::string takeOutput() {
        std::string text = console_->output();
        console_->clear();
        return text;
    }
    /// What went to standard error (printed warnings) since the last take.
    std::string takeError() {
        std::string text = console_->error();
        console_->clear();
        return text;
    }

    /// The last warning's identifier and message (UTF-8).
    StateRow lastWarning() const {
        std::u16string message;
        std::string identifier;
        warning::utGetLastWarningMsg(context, message, identifier);
        return {identifier, text::utf16ToUtf8(message)};
    }

    warning::WarningManagerContext* context = nullptr;

private:
    std::optional<interp::VirtualMachineScope> machine_;
    std::optional<console::ConsoleCapture> console_;
};

}  // namespace orrery::testing
