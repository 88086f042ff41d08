// The catalogued exception family: an identifier plus a catalogue key.
#pragma once

#include <orrery/except/message_id.hpp>
#include <orrery/export.hpp>

#include <exception>
#include <memory>
#include <string>
#include <string_view>

namespace orrery::except {

/// Base of every catalogued failure. It keeps its key and formats the key's
/// catalogue text the first time message() or what() reads it, so a failure that
/// is caught and never shown is never formatted. Copies share the key and the
/// text, which is formatted once even when several threads read it.
class ORRERY_API IMsgIDException : public std::exception {
public:
    /// identifier: the identifier the failure is known by; key: where its text comes from.
    IMsgIDException(std::string identifier, MessageID key);
    ~IMsgIDException() override;
    IMsgIDException(const IMsgIDException&) = default;
    IMsgIDException& operator=(const IMsgIDException&) = default;

    const std::string& identifier() const noexcept { return identifier_; }
    const MessageID& key() const noexcept;
    /// The catalogue text as UTF-16. Raises what the catalogue's formatting raises
    /// when the key has no text or its arguments do not fit the text.
    const std::u16string& message() const;
    /// The catalogue text as UTF-8; a note in its place when it cannot be formatted.
    const char* what() const noexcept override;
    /// Cheap identifier check.
    bool is(std::string_view identifier) const noexcept { return identifier_ == identifier; }

private:
    struct Text;

    const Text& formatted() const;

    std::string identifier_;
    std::shared_ptr<Text> text_;
};

/// One exception type per key type, all made from this template.
template <class Key, class Parent = IMsgIDException>
class MsgIDException : public Parent {
public:
    using Parent::Parent;
};

}  // namespace orrery::except
