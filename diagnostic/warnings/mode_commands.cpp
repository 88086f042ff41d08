// The backtrace and verbose modes, and the refused debug and frequency forms.
#include "diagnostic/warnings/mode_commands.hpp"

#include "diagnostic/warnings/state_outputs.hpp"
#include "diagnostic/warnings/warning_commands.hpp"
#include "diagnostic/warnings/warning_ids.hpp"
#include "diagnostic/warnings/warning_state.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

namespace orrery::diagnostic {
namespace {

using warning::WarningManagerContext;
using warning::WarningMode;

// The mode given first: outputs, then on or off; any other value is refused.
template <class IllegalSetting>
void setModeBySetting(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context,
                      const std::optional<std::string>& setting, WarningMode mode) {
    const std::string value = setting.value_or("on");
    produceStateOutputs(nlhs, plhs, context, modeName(mode));
    if (!isWord(value, "on") && !isWord(value, "off")) {
        except::throwMessage(IllegalSetting(text::utf8ToUtf16Lossy(modeName(mode)), text::utf8ToUtf16Lossy(value)));
    }
    warning::utSetWarningMode(context, mode, isWord(value, "on"));
}

}  // namespace

std::string_view modeName(WarningMode mode) { return mode == WarningMode::Verbose ? "verbose" : "backtrace"; }

void switchMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context, WarningMode mode,
                bool on) {
    produceStateOutputs(nlhs, plhs, context, modeName(mode));
    warning::utSetWarningMode(context, mode, on);
}

void queryMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context, WarningMode mode) {
    if (nlhs > 0) return produceStateOutputs(nlhs, plhs, context, modeName(mode));
    const bool on = warning::utIsWarningModeOn(context, mode);
    const std::string_view message = mode == WarningMode::Verbose
                                         ? (on ? ids::kOutputVerbose : ids::kOutputTerse)
                                         : (on ? ids::kBacktracesEnabled : ids::kBacktracesDisabled);
    warning::utPrintf("%s", catalogue::formatMessageUtf8(message).c_str());
}

void refuseObsoleteDebug(std::u16string_view command, bool on) {
    except::throwMessage(
        ids::DebugOptionIsObsolete(std::u16string(command), on ? u"dbstop if warning" : u"dbclear if warning"));
}

void setBacktraceMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context,
                      const std::optional<std::string>& setting) {
    setModeBySetting<ids::IllegalBacktraceSetting>(nlhs, plhs, context, setting, WarningMode::Backtrace);
}

void setVerboseMode(std::int32_t nlhs, value::ValueArrayPtr* plhs, WarningManagerContext* context,
                    const std::optional<std::string>& setting) {
    setModeBySetting<ids::IllegalVerboseSetting>(nlhs, plhs, context, setting, WarningMode::Verbose);
}

void refuseDebugMode(std::int32_t /*nlhs*/, value::ValueArrayPtr* /*plhs*/, WarningManagerContext* /*context*/,
                     const std::optional<std::string>& setting) {
    const std::string value = setting.value_or("on");
    if (value == "on") refuseObsoleteDebug(u"warning debug on", true);
    if (value == "off") refuseObsoleteDebug(u"warning debug off", false);
    except::throwMessage(ids::IllegalDebugSetting(text::utf8ToUtf16Lossy(value)));
}

void refuseFrequency(std::int32_t /*nlhs*/, value::ValueArrayPtr* /*plhs*/, WarningManagerContext* /*context*/,
                     const std::optional<std::string>& /*setting*/) {
    except::throwMessage(ids::OnceAndAlwaysObsolete());
}

}  // namespace orrery::diagnostic
