// The interpreter's warning operation: applies the identifier's state, prints
// what the filters let through, and hands catalogue warnings to the log.
#include "warning/warning_filter_stack.hpp"
#include "warning/warning_print.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/qexception_envelope.hpp>
#include <orrery/warning/warning_operation.hpp>

namespace orrery::warning {
namespace {

// The identifier's own state, else the "all" default. An empty identifier has no
// state of its own, whatever was stored under "".
WarningState applicableState(WarningManagerContext* context, std::string_view identifier) {
    if (context == nullptr) return WarningState::On;
    return utGetWarningStatus(context, identifier.empty() ? std::string_view("all") : identifier);
}

}  // namespace

bool issueWarningWithoutLogging(WarningManagerContext* context, std::string_view identifier,
                                std::u16string_view message) {
    const WarningState state = applicableState(context, identifier);
    if (state == WarningState::Off) return true;
    if (state == WarningState::Error)
        except::QExceptionEnvelope(std::string(identifier), std::u16string(message), std::nullopt, 1).DoThrow();

    std::u16string text(message);
    if (!runWarningFilters(text)) return false;
    console::consoleWrite(console::ConsoleStream::Error, renderWarning(context, identifier, text));
    if (context != nullptr) utSetLastPrintedWarningId(context, identifier);
    return false;
}

void issueCatalogueWarning(WarningManagerContext* context, const catalogue::MessageContent& message) {
    const bool wasDisabled = issueWarningWithoutLogging(context, message.identifier, message.text());
    if (context == nullptr) return;
    if (utWarningLog* log = utGetWarningLog(context)) log->warn(context, std::nullopt, message, wasDisabled);
}

}  // namespace orrery::warning
