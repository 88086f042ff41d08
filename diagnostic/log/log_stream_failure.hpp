// Stream failures of warning log files raised as their "LogFile" identifiers.
#pragma once

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cerrno>
#include <ios>
#include <string>
#include <system_error>

namespace orrery::lang::diagnostic {

/// Runs operation on a stream whose exception mask is set; a stream failure is
/// raised as Key with the path and the failure's text: the system's description
/// of the error that the operation met (errno), or else the stream's own text.
template <class Key, class Operation>
void raisingStreamFailureAs(const std::u16string& path, Operation&& operation) {
    errno = 0;
    try {
        operation();
    } catch (const std::ios_base::failure& failure) {
        const int error = errno;
        const std::string reason = error != 0 ? std::generic_category().message(error) : std::string(failure.what());
        except::throwMessage(Key(path, text::utf8ToUtf16Lossy(reason)));
    }
}

}  // namespace orrery::lang::diagnostic
