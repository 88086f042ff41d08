// Reading start-up warning settings and applying them through the warning built-in.
#include "shell/startup/warning_settings.hpp"

#include "shell/eval/user_error.hpp"
#include "shell/startup/startup_messages.hpp"

#include <orrery/except/qexception.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/text/text.hpp>
#include <orrery/value/value_array.hpp>

#include <array>
#include <cstdlib>

namespace orrery::shell::startup {
namespace {

constexpr std::string_view kStates[] = {"on", "off", "error"};
constexpr std::string_view kBlanks = " \t";

bool isState(std::string_view text) {
    for (const std::string_view state : kStates)
        if (text::equalsIgnoreCaseAscii(text, state)) return true;
    return false;
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

WarningSetting parseWarningSetting(std::string_view written, std::u16string_view origin) {
    WarningSetting setting{std::string(written), std::u16string(origin), {}, "all"};
    const auto colon = written.find(':');
    setting.state = written.substr(0, colon);
    if (colon != std::string_view::npos) setting.identifier = written.substr(colon + 1);
    if (!isState(setting.state) || setting.identifier.empty())
        except::throwMessage(BadWarningSetting(text::utf8ToUtf16Lossy(written), setting.origin));
    return setting;
}

std::vector<WarningSetting> parseWarningList(std::string_view list, std::u16string_view origin) {
    std::vector<WarningSetting> settings;
    if (trimmed(list).empty()) return settings;
    for (std::size_t start = 0; start <= list.size();) {
        const auto comma = std::min(list.find(',', start), list.size());
        settings.push_back(parseWarningSetting(trimmed(list.substr(start, comma - start)), origin));
        start = comma + 1;
    }
    return settings;
}

std::vector<WarningSetting> warningSettingsFromEnvironment() {
    const char* list = std::getenv(kWarningsVariable);
    if (list == nullptr) return {};
    return parseWarningList(list, text::asciiToUtf16(kWarningsVariable));
}

void applyWarningSettings(const std::vector<WarningSetting>& settings) {
    for (const WarningSetting& setting : settings) {
        const auto state = value::ValueArray::charsFromUtf8(setting.state);
        const auto identifier = value::ValueArray::charsFromUtf8(setting.identifier);
        const std::array<const value::ValueArray*, 2> inputs{&state, &identifier};
        value::ValueArrayPtr output;
        try {
            try {
                interp::callFunction("warning", 0, &output, 2, inputs.data());
            } catch (...) {
                eval::rethrowAsUserError("warning");
            }
        } catch (const except::QException& refusal) {
            except::throwMessage(
                RefusedWarningSetting(text::utf8ToUtf16Lossy(setting.written), setting.origin, refusal.message()));
        }
    }
}

}  // namespace orrery::shell::startup
