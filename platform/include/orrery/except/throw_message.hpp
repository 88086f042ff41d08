// The one raise path of catalogued failures.
#pragma once

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/export.hpp>

#include <functional>
#include <string>

namespace orrery::except {

/// The array layer's legacy error report: records the failure as the last error
/// (identifier and text, no stack) and tells the legacy listener, if any.
ORRERY_API void legacyErrorReport(const IMsgIDException& failure);

/// Installs the listener the legacy report calls; returns the previous one.
using LegacyErrorListener = std::function<void(const IMsgIDException&)>;
ORRERY_API LegacyErrorListener setLegacyErrorListener(LegacyErrorListener listener);

/// Raises the key's own identifier with its catalogue text, after the legacy report.
template <class Key>
[[noreturn]] void throwMessage(Key key) {
    std::string identifier = key.identifier();
    MsgIDException<Key> failure(std::move(identifier), std::move(key));
    legacyErrorReport(failure);
    throw failure;
}

/// Raises an explicit identifier whose text comes from the key's catalogue entry.
template <class Key>
[[noreturn]] void throwMessage(std::string identifier, Key key) {
    MsgIDException<Key> failure(std::move(identifier), std::move(key));
    legacyErrorReport(failure);
    throw failure;
}

}  // namespace orrery::except
