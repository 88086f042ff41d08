// Names and lookups of warning states shared by the warning built-ins.
#include "diagnostic/warnings/warning_state.hpp"

#include <orrery/except/internal_error.hpp>
#include <orrery/text/text.hpp>

#include <array>

namespace orrery::diagnostic {

using warning::WarningManagerContext;
using warning::WarningMode;
using warning::WarningState;

WarningManagerContext* warningContext() {
    WarningManagerContext* context = warning::utGetWarningManagerContext();
    if (context == nullptr) except::internalError("warning built-ins", "no warning manager context");
    return context;
}

std::string_view stateName(WarningState state) {
    static constexpr std::array<std::string_view, 3> kNames = {"off", "on", "error"};
    return kNames.at(static_cast<std::size_t>(state));
}

const value::ValueArray& stateNameValue(WarningState state) {
    static const std::array<value::ValueArray, 3> kValues = {value::ValueArray::charsFromUtf8("off"),
                                                             value::ValueArray::charsFromUtf8("on"),
                                                             value::ValueArray::charsFromUtf8("error")};
    return kValues.at(static_cast<std::size_t>(state));
}

WarningState modeState(WarningManagerContext* context, WarningMode mode) {
    return warning::utIsWarningModeOn(context, mode) ? WarningState::On : WarningState::Off;
}

WarningState currentState(WarningManagerContext* context, std::string_view target) {
    if (target == "debug") return modeState(context, WarningMode::Debug);
    if (isWord(target, "backtrace")) return modeState(context, WarningMode::Backtrace);
    if (isWord(target, "verbose")) return modeState(context, WarningMode::Verbose);
    return warning::utGetWarningStatus(context, target);
}

bool isIdentifierOrPseudo(std::string_view target) {
    return warning::utIsValidMessageIdentifier(target) || isWord(target, "all") || isWord(target, "last");
}

bool isWord(std::string_view text, std::string_view keyword) { return text::equalsIgnoreCaseAscii(text, keyword); }

}  // namespace orrery::diagnostic
