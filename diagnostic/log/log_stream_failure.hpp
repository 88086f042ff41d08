// The system's text for a failure of a warning log file, as its "LogFile"
// identifiers carry it.
#pragma once

#include <orrery/text/text.hpp>

#include <string>
#include <system_error>

namespace orrery::lang::diagnostic {

/// The system's description of an error (an errno value).
inline std::u16string systemErrorText(int error) {
    return text::utf8ToUtf16Lossy(std::generic_category().message(error));
}

}  // namespace orrery::lang::diagnostic
