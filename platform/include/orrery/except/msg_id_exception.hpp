// The catalogued exception family: an identifier plus a catalogue key.
#pragma once

#include <orrery/except/message_id.hpp>
#include <orrery/export.hpp>

#include <exception>
#include <string>
#include <string_view>

namespace orrery::except {

/// Base of every catalogued failure. what() is the formatted catalogue text (UTF-8).
class ORRERY_API IMsgIDException : public std::exception {
public:
    /// identifier: the identifier the failure is known by; key: where its text comes from.
    IMsgIDException(std::string identifier, MessageID key);
    ~IMsgIDException() override;
    IMsgIDException(const IMsgIDException&) = default;
    IMsgIDException& operator=(const IMsgIDException&) = default;

    const std::string& identifier() const noexcept { return identifier_; }
    const MessageID& key() const noexcept { return key_; }
    /// The formatted text as UTF-16.
    std::u16string message() const;
    const char* what() const noexcept override { return text_.c_str(); }
    /// Cheap identifier check.
    bool is(std::string_view identifier) const noexcept { return identifier_ == identifier; }

private:
    std::string identifier_;
    MessageID key_;
    std::string text_;
};

/// One exception type per key type, all made from this template.
template <class Key, class Parent = IMsgIDException>
class MsgIDException : public Parent {
public:
    using Parent::Parent;
};

}  // namespace orrery::except
