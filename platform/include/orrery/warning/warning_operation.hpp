// The interpreter's warning operations: issuing without logging, catalogue
// warnings, and the stack of warning-output filters.
#pragma once

#include <orrery/catalogue/message_content.hpp>
#include <orrery/export.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <functional>
#include <string>
#include <string_view>

namespace orrery::warning {

/// Issues a warning without logging it. By the identifier's state (own, else the
/// "all" default): "off" prints nothing and answers true (disabled); "error"
/// raises the user error (QException) with the identifier and message; "on"
/// passes the text through the filter stack and, unless a filter suppresses it,
/// prints "Warning: <message>" to standard error, followed in backtrace mode by
/// the caller's location and in verbose mode by a hint, then records the last
/// printed identifier. Answers whether the warning was disabled.
ORRERY_API bool issueWarningWithoutLogging(WarningManagerContext* context, std::string_view identifier,
                                           std::u16string_view message);

/// Issues a catalogue message as a warning with the message's own identifier:
/// issueWarningWithoutLogging, then the context's log (if any) receives it.
ORRERY_API void issueCatalogueWarning(WarningManagerContext* context, const catalogue::MessageContent& message);

/// Receives the text of a warning about to be printed; false suppresses printing.
using WarningFilterFunction = std::function<bool(std::u16string& text)>;

/// Pushes a filter on construction and pops it on destruction.
class ORRERY_API WarningFilter {
public:
    explicit WarningFilter(WarningFilterFunction filter);
    ~WarningFilter();
    WarningFilter(const WarningFilter&) = delete;
    WarningFilter& operator=(const WarningFilter&) = delete;

private:
    std::size_t id_;
};

}  // namespace orrery::warning
