// The top level: what escapes a run is reported by its kind, and only user
// errors become the last error.
#include "shell/startup/session.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/except/throw_message.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <new>

using namespace orrery;
using shell::startup::RunOutcome;

TEST(TopLevel, ReportsEachKindOfFailureAndGoesOn) {
    const std::tuple<const char*, std::function<void()>, RunOutcome, int, std::string> cases[] = {
        {"nothing fails", [] {}, RunOutcome::Completed, 0, "before"},
        {"user error", [] { throw except::QException("demo:user", u"u", value::ValueArray::stackStructure(0), ""); },
         RunOutcome::UserError, 1, "demo:user"},
        {"catalogued failure", [] { except::throwMessage(except::host::InvalidInput()); }, RunOutcome::UserError, 1,
         "ORRERY:invalidInput"},
        {"out of memory", [] { throw std::bad_alloc(); }, RunOutcome::UserError, 1, "ORRERY:shell:outOfMemory"},
        {"internal fault", [] { except::internalError("test", "broken"); }, RunOutcome::InternalFault, 70, "before"},
        {"other exception", [] { throw std::out_of_range("x"); }, RunOutcome::InternalFault, 70, "before"},
    };
    for (const auto& [name, body, outcome, status, lastIdentifier] : cases) {
        SCOPED_TRACE(name);
        except::QException::LastError::Set("before", u"", std::nullopt);
        const console::ConsoleCapture console;
        EXPECT_EQ(shell::startup::runAtTopLevel(body), outcome);
        const std::string printed = console.error();
        EXPECT_EQ(shell::startup::exitStatus(outcome), status);
        EXPECT_EQ(except::QException::LastError::Get().identifier, lastIdentifier);
        if (outcome == RunOutcome::InternalFault) {
            EXPECT_EQ(printed.rfind("Internal error: ", 0), 0u) << printed;
        }
    }
}
