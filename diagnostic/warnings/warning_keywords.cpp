// The one table that binds the warning keywords to their commands.
#include "diagnostic/warnings/warning_keywords.hpp"

#include "diagnostic/warnings/warning_state.hpp"

namespace orrery::diagnostic {
namespace {

struct WarningKeyword {
    std::string_view name;
    bool anyCase;            // false: byte for byte, case included
    bool needsAnotherInput;  // a command only when another input follows
    WarningCommand command;
};

// Looked up in this order. The mix of exact and any-case matches is deliberate:
// warning('OFF') is a command, warning('ONCE') and warning('Debug') are messages.
constexpr WarningKeyword kKeywords[] = {
    {"on", true, false, &setStateOn},
    {"off", true, false, &setStateOff},
    {"error", true, true, &setStateError},
    {"once", false, false, &refuseFrequency},
    {"always", false, false, &refuseFrequency},
    {"query", true, false, &queryState},
    {"backtrace", true, false, &setBacktraceMode},
    {"debug", false, false, &refuseDebugMode},
    {"verbose", true, false, &setVerboseMode},
};

}  // namespace

WarningCommand findWarningCommand(std::string_view first, std::int32_t remainingInputs) {
    for (const auto& keyword : kKeywords) {
        const bool matches = keyword.anyCase ? isWord(first, keyword.name) : first == keyword.name;
        if (matches && (!keyword.needsAnotherInput || remainingInputs >= 1)) return keyword.command;
    }
    return nullptr;
}

}  // namespace orrery::diagnostic
