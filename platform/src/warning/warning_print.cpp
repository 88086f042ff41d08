// Renders printed warnings (message, location, hint) and writes them to the
// warning output, standard error unless redirected.
#include "warning/warning_print.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_operation.hpp>

#include <array>
#include <iostream>

namespace orrery::warning {
namespace {

std::ostream*& outputStream() {
    static std::ostream* output = &std::cerr;
    return output;
}

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
    if (utIsWarningModeOn(context, kModeBacktrace)) text += locationLine();
    if (utIsWarningModeOn(context, kModeVerbose) && !identifier.empty()) text += hintLine(identifier);
    return text;
}

void writeWarningOutput(std::string_view text) {
    std::ostream& output = *outputStream();
    output << text;
    output.flush();
}

std::ostream* setWarningOutput(std::ostream* output) {
    std::ostream* previous = outputStream();
    outputStream() = output != nullptr ? output : &std::cerr;
    return previous;
}

}  // namespace orrery::warning
