// The remains of an append cut short, as the writer leaves them after the footer.
#include "diagnostic/log/log_file_format.hpp"

#include <algorithm>

namespace orrery::lang::diagnostic {

// The element's text never holds a line break of its own nor a "<" outside its
// tags, so the footer's bytes can stand in the remains only at their very end.
bool isWhitespaceThenInterruptedAppend(std::string_view bytes) noexcept {
    constexpr std::string_view kRemainsStart = kWarningElementStart.substr(kLogFooter.size());
    bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
    if (bytes.size() <= kRemainsStart.size()) return kRemainsStart.starts_with(bytes);
    if (!bytes.starts_with(kRemainsStart)) return false;
    const std::size_t footer = bytes.find("</log");
    return footer == std::string_view::npos ||
           (bytes[footer - 1] == '\n' && kLogFooter.starts_with(bytes.substr(footer)));
}

}  // namespace orrery::lang::diagnostic
