// Stream failures of warning log files raised as their "LogFile" identifiers.
#pragma once

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cerrno>
#include <ios>
#include <string>
#include <system_error>

namespace orrery::lang::diagnostic {

/// The system's description of an error (an errno value).
inline std::u16string systemErrorText(int error) {
    return text::utf8ToUtf16Lossy(std::generic_category().message(error));
}

/// The text of a stream failure: the system's description of the error that the
/// failed operation met (error, an errno value), or else the stream's own text.
inline std::u16string streamFailureText(const std::ios_base::failure& failure, int error) {
    return error != 0 ? systemErrorText(error) : text::utf8ToUtf16Lossy(failure.what());
}

/// Runs operation on a stream whose exception mask is set; a stream failure is
/// raised as Key with the path and streamFailureText.
template <class Key, class Operation>
void raisingStreamFailureAs(const std::u16string& path, Operation&& operation) {
    errno = 0;
    try {
        operation();
    } catch (const std::ios_base::failure& failure) {
        const int error = errno;
        except::throwMessage(Key(path, streamFailureText(failure, error)));
    }
}

}  // namespace orrery::lang::diagnostic
