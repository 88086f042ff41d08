// The fixed bytes of a warning log file, shared by its writer and its reader.
#pragma once

#include <string_view>

namespace orrery::lang::diagnostic {

/// The first bytes of every log file: the XML declaration and the start tag of "log".
inline constexpr std::string_view kLogHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<log>\n";
/// The last bytes of every log file.
inline constexpr std::string_view kLogFooter = "</log>\n";
/// The log's one indentation unit: elements of a warning stand one unit deeper.
inline constexpr std::string_view kLogIndent = "    ";
/// How every "warning" element starts, up to its identifier's value.
inline constexpr std::string_view kWarningElementStart = "    <warning identifier=\"";

/// Whether bytes, found after the end tag of "log", are whitespace followed by
/// nothing or by what an append cut short leaves after the footer: the warning
/// element less its first kLogFooter.size() bytes (which the writer puts over the
/// old footer last), cut anywhere, possibly followed by its new footer.
bool isWhitespaceThenInterruptedAppend(std::string_view bytes) noexcept;

}  // namespace orrery::lang::diagnostic
