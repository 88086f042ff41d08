// The commands that set and query warning states: on, off, error and query.
#include "diagnostic/warnings/warning_commands.hpp"

#include "diagnostic/warnings/mode_commands.hpp"
#include "diagnostic/warnings/state_display.hpp"
#include "diagnostic/warnings/state_outputs.hpp"
#include "diagnostic/warnings/warning_ids.hpp"
#include "diagnostic/warnings/warning_state.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/services/services.hpp>
#include <orrery/text/text.hpp>

namespace orrery::diagnostic {
namespace {

using warning::WarningManagerContext;
using warning::WarningMode;
using warning::WarningState;

[[noreturn]] void refuseUnknown(std::string_view target) {
    except::throwMessage(ids::UnknownSettingOrId(text::utf8ToUtf16Lossy(target)));
}

// Sets an identifier's state, "all" (the default) or that of the last printed warning.
void setState(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context, std::string_view target,
              WarningState state) {
    if (!isIdentifierOrPseudo(target)) refuseUnknown(target);
    std::string identifier(target);
    if (isWord(target, "last")) {
        identifier = warning::utGetLastPrintedWarningId(context);
        if (identifier.empty()) except::throwMessage(ids::NoLastWarning());
    }
    produceStateOutputs(nlhs, plhs, context, identifier);
    warning::utSetWarningStatus(context, identifier, state);
}

// on and off: the modes by name, the refused debug switch, else a state.
void setOnOrOff(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context,
                const std::optional<std::string>& setting, bool on) {
    const std::string target = setting.value_or("all");
    if (isWord(target, "backtrace")) return switchMode(nlhs, plhs, context, WarningMode::Backtrace, on);
    if (target == "debug") refuseObsoleteDebug(on ? u"warning debug on" : u"warning debug off", on);
    if (isWord(target, "verbose")) return switchMode(nlhs, plhs, context, WarningMode::Verbose, on);
    setState(nlhs, plhs, context, target, on ? WarningState::On : WarningState::Off);
}

}  // namespace

void setStateOn(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context,
                const std::optional<std::string>& setting) {
    setOnOrOff(nlhs, plhs, context, setting, true);
}

void setStateOff(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context,
                 const std::optional<std::string>& setting) {
    setOnOrOff(nlhs, plhs, context, setting, false);
}

void setStateError(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context,
                   const std::optional<std::string>& setting) {
    if (!setting) except::throwInvalidInput();
    if (isWord(*setting, "all") && !services::svIsFeatureEnabled("AllWarningsCanBeErrors"))
        except::throwMessage(ids::CannotUseAllWithError());
    setState(nlhs, plhs, context, *setting, WarningState::Error);
}

void queryState(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context,
                const std::optional<std::string>& setting) {
    const std::string target = setting.value_or("all");
    if (!isIdentifierOrPseudo(target)) {
        if (target == "debug") except::throwMessage(ids::DebugOptionIsObsolete(u"warning query debug", u"dbstatus"));
        if (isWord(target, "backtrace")) return queryMode(nlhs, plhs, context, WarningMode::Backtrace);
        if (isWord(target, "verbose")) return queryMode(nlhs, plhs, context, WarningMode::Verbose);
        refuseUnknown(target);
    }
    // Unlike setting it, querying "last" with no printed warning is no error.
    const std::string identifier = isWord(target, "last") ? warning::utGetLastPrintedWarningId(context) : target;
    if (nlhs <= 0) return displayState(context, identifier);
    produceStateOutputs(nlhs, plhs, context, identifier);
}

}  // namespace orrery::diagnostic
