// Renders printed warnings: the message, the caller's location and the hint.
#include "warning/warning_print.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/text/text.hpp>

#include <array>

namespace orrery::warning {
namespace {

std::string locationLine() {
    const auto frames = interp::currentFrames();
    if (frames.empty()) return {};
    const interp::StackEntry& innermost = frames.front();
    return "> In " + text::utf16ToUtf8Lossy(innermost.name) + " (line " + std::to_string(innermost.line) + ")\n";
}

std::string hintLine(std::string_view identifier) {
    const std::array<catalogue::MessageArgument, 1> arguments{text::utf8ToUtf16Lossy(identifier)};
    return catalogue::formatMessageUtf8("ORRERY:console:warningOffHint", arguments) + "\n";
}

}  // namespace

std::string renderWarning(WarningManagerContext* context, std::string_view identifier, std::u16string_view message) {
    std::string text = "Warning: " + text::utf16ToUtf8Lossy(message) + "\n";
    if (context == nullptr) return text;
    if (utIsWarningModeOn(context, WarningMode::Backtrace)) text += locationLine();
    if (utIsWarningModeOn(context, WarningMode::Verbose) && !identifier.empty()) text += hintLine(identifier);
    return text;
}

}  // namespace orrery::warning
