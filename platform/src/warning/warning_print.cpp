// Renders printed warnings: the message, the caller's location and the hint.
#include "warning/warning_print.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/interp/call_stack.hpp>

#include <unicode/ustring.h>

#include <array>

namespace orrery::warning {
namespace {

constexpr UChar32 kReplacement = 0xFFFD;

// UTF-16 to UTF-8 with U+FFFD for each unpaired surrogate: a warning is printed
// even when its text is damaged.
std::string toUtf8Replacing(std::u16string_view utf16) {
    const auto* in = reinterpret_cast<const UChar*>(utf16.data());
    const auto inLength = static_cast<int32_t>(utf16.size());
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    u_strToUTF8WithSub(nullptr, 0, &length, in, inLength, kReplacement, nullptr, &status);
    std::string out(static_cast<std::size_t>(length), '\0');
    status = U_ZERO_ERROR;
    u_strToUTF8WithSub(out.data(), length, nullptr, in, inLength, kReplacement, nullptr, &status);
    return U_SUCCESS(status) ? out : std::string();
}

// UTF-8 to UTF-16 with U+FFFD for each malformed sequence.
std::u16string toUtf16Replacing(std::string_view utf8) {
    const auto inLength = static_cast<int32_t>(utf8.size());
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    u_strFromUTF8WithSub(nullptr, 0, &length, utf8.data(), inLength, kReplacement, nullptr, &status);
    std::u16string out(static_cast<std::size_t>(length), u'\0');
    status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(reinterpret_cast<UChar*>(out.data()), length, nullptr, utf8.data(), inLength, kReplacement,
                         nullptr, &status);
    return U_SUCCESS(status) ? out : std::u16string();
}

std::string locationLine() {
    const auto frames = interp::currentFrames();
    if (frames.empty()) return {};
    const interp::StackEntry& innermost = frames.front();
    return "> In " + toUtf8Replacing(innermost.name) + " (line " + std::to_string(innermost.line) + ")\n";
}

std::string hintLine(std::string_view identifier) {
    const std::array<catalogue::MessageArgument, 1> arguments{toUtf16Replacing(identifier)};
    return catalogue::formatMessageUtf8("ORRERY:console:warningOffHint", arguments) + "\n";
}

}  // namespace

std::string renderWarning(WarningManagerContext* context, std::string_view identifier, std::u16string_view message) {
    std::string text = "Warning: " + toUtf8Replacing(message) + "\n";
    if (context == nullptr) return text;
    if (utIsWarningModeOn(context, WarningMode::Backtrace)) text += locationLine();
    if (utIsWarningModeOn(context, WarningMode::Verbose) && !identifier.empty()) text += hintLine(identifier);
    return text;
}

}  // namespace orrery::warning
