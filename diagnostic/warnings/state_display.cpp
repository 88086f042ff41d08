// Printing warning states through the warning manager's console output.
#include "diagnostic/warnings/state_display.hpp"

#include "diagnostic/warnings/warning_ids.hpp"
#include "diagnostic/warnings/warning_state.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace orrery::diagnostic {
namespace {

using warning::WarningState;

int orderWeight(char byte) { return byte == ':' ? 0 : static_cast<signed char>(byte); }

catalogue::MessageArgument textArgument(std::string_view text) { return text::utf8ToUtf16Lossy(text); }

void printMessage(std::string_view identifier, std::span<const catalogue::MessageArgument> arguments = {}) {
    warning::utPrintf("%s", catalogue::formatMessageUtf8(identifier, arguments).c_str());
}

void displayAll(warning::WarningManagerContext* context) {
    const WarningState defaultState = warning::utGetWarningStatus(context, "all");
    const std::array<catalogue::MessageArgument, 1> defaultName{textArgument(stateName(defaultState))};
    std::vector<std::pair<std::string, WarningState>> exceptions;
    warning::utIterateOverWarningStatuses(context, [&](const std::string& identifier, WarningState state) {
        if (state != defaultState) exceptions.emplace_back(identifier, state);
    });
    if (exceptions.empty()) {
        printMessage(ids::kAllWarningsHaveTheState, defaultName);
        warning::utPrintf("\n");
        return;
    }
    std::sort(exceptions.begin(), exceptions.end(),
              [](const auto& a, const auto& b) { return identifierPrecedes(a.first, b.first); });
    printMessage(ids::kDefaultWarningStateLine, defaultName);
    printMessage(ids::kStateWarningHeader);
    for (const auto& [identifier, state] : exceptions)
        warning::utPrintf("  %5s  %s\n", std::string(stateName(state)).c_str(), identifier.c_str());
    warning::utPrintf("\n");
}

}  // namespace

bool identifierPrecedes(std::string_view a, std::string_view b) {
    const auto [differA, differB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    if (differA == a.end() || differB == b.end()) return differA == a.end() && differB != b.end();
    const int weightA = orderWeight(*differA);
    const int weightB = orderWeight(*differB);
    // Only ":" against a zero byte weighs the same; the bytes then keep the order strict.
    if (weightA == weightB) return static_cast<unsigned char>(*differA) < static_cast<unsigned char>(*differB);
    return weightA < weightB;
}

void displayState(warning::WarningManagerContext* context, std::string_view target) {
    if (target.empty()) return printMessage(ids::kNoLastWarningMsg);
    if (isWord(target, "all")) return displayAll(context);
    const std::array<catalogue::MessageArgument, 2> arguments{textArgument(target),
                                                              textArgument(stateName(currentState(context, target)))};
    printMessage(ids::kStateOfWarningIs, arguments);
}

}  // namespace orrery::diagnostic
