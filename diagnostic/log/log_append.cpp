// Reopening an existing warning log to write more warnings before its footer.
#include "diagnostic/log/log_append.hpp"

#include <orrery/except/internal_error.hpp>

namespace orrery::lang::diagnostic {

// Finding the footer of an existing log needs the log reader, which comes next.
std::shared_ptr<LogOutputStream> appendToLog(const std::u16string& /*path*/) {
    except::internalError("warning log", "appending to an existing log is not available yet");
}

}  // namespace orrery::lang::diagnostic
