// The interpreter's warning operations: issuing without logging, catalogue
// warnings and the stack of warning-output filters.
#pragma once

#include <orrery/catalogue/message_content.hpp>
#include <orrery/export.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace orrery::warning {

/// Issues a warning without logging it. By the identifier's state (own, else the
/// "all" default; an empty identifier always takes the default):
/// - "off" prints nothing and answers true (disabled);
/// - "error" raises the user error (QException) with the identifier and message;
/// - "on" passes a copy of the text through the filter stack and, unless a filter
///   suppresses it, prints "Warning: <message>" (UTF-8) to the console's error stream,
///   followed in backtrace mode by "> In <name> (line <n>)" for the innermost
///   frame of the call stack (when there is one) and in verbose mode by a hint
///   naming the command that turns the warning off (when it has an identifier);
///   then records the identifier as the last printed one. A suppressed warning is
///   not printed and so not recorded. Answers false.
/// Text that is not valid (unpaired surrogates in the message, malformed UTF-8 in
/// the identifier) is printed with U+FFFD in place of each bad sequence.
/// Without a context (the host has none) the warning is printed plainly and
/// nothing is recorded.
ORRERY_API bool issueWarningWithoutLogging(WarningManagerContext* context, std::string_view identifier,
                                           std::u16string_view message);

/// Issues a catalogue message as a warning with the message's own identifier and
/// text: issueWarningWithoutLogging, then the context's log (if any) receives the
/// message with the answer as wasDisabled. An "error" state raises before logging.
ORRERY_API void issueCatalogueWarning(WarningManagerContext* context, const catalogue::MessageContent& message);

/// Receives the text of a warning about to be printed and may change it; false
/// suppresses printing.
using WarningFilterFunction = std::function<bool(std::u16string& text)>;

class WarningFilterStack;

/// Registers a filter with the current virtual machine for as long as the object
/// lives (without a machine it registers nowhere). Filters run from the most
/// recently pushed to the oldest, each seeing the text as the previous one left
/// it; the first that answers false ends the run and the warning is not printed.
/// Destruction removes exactly this object's filter from the machine it was
/// registered with, in whatever order filters are destroyed and whichever machine
/// is current then (nothing, once that machine is gone). An empty function lets
/// every warning through.
class ORRERY_API WarningFilter {
public:
    explicit WarningFilter(WarningFilterFunction filter);
    ~WarningFilter();
    WarningFilter(const WarningFilter&) = delete;
    WarningFilter& operator=(const WarningFilter&) = delete;

private:
    std::weak_ptr<WarningFilterStack> stack_;
    std::size_t id_ = 0;
};

}  // namespace orrery::warning
