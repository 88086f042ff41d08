// Catalogue message keys: (component, mnemonic) with ordered arguments.
#pragma once

#include <orrery/catalogue/message_argument.hpp>
#include <orrery/export.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::except {

using catalogue::MessageArgument;

/// A catalogue message key: the identifier split into component ("ORRERY:error")
/// and mnemonic ("badStackLine"), with the arguments that fill its text.
struct ORRERY_API MessageID {
    std::string component;
    std::string mnemonic;
    std::vector<MessageArgument> arguments;

    /// component + ":" + mnemonic.
    std::string identifier() const;
    /// The catalogue text of the key with its arguments, in the current locale.
    std::u16string text() const;
};

/// Splits a full identifier literal at its last colon, at compile time.
constexpr std::string_view componentOf(std::string_view identifier) {
    return identifier.substr(0, identifier.rfind(':'));
}
constexpr std::string_view mnemonicOf(std::string_view identifier) {
    return identifier.substr(identifier.rfind(':') + 1);
}

/// Base of the typed keys; Self is the key type, which names its identifier, and
/// Count is the number of arguments its catalogue text takes. A key is made with
/// exactly Count arguments: any other number does not compile.
template <class Self, std::size_t Count>
struct MessageKey : MessageID {
    template <class... Args>
    requires(sizeof...(Args) == Count) explicit MessageKey(Args&&... args)
        : MessageID{std::string(componentOf(Self::identifierText)),
                    std::string(mnemonicOf(Self::identifierText)),
                    {toArgument(std::forward<Args>(args))...}} {}

    /// The number of arguments of the key.
    static constexpr std::size_t argumentCount = Count;

private:
    static MessageArgument toArgument(std::u16string text) { return MessageArgument(std::move(text)); }
    static MessageArgument toArgument(const char16_t* text) { return MessageArgument(std::u16string(text)); }
    template <class Number>
    requires std::is_arithmetic_v<std::remove_cvref_t<Number>>
    static MessageArgument toArgument(Number n) { return MessageArgument(static_cast<double>(n)); }
};

}  // namespace orrery::except

/// Declares the key type Name for the catalogue identifier Identifier (a literal),
/// whose text takes ArgumentCount arguments ({0} to {ArgumentCount - 1}).
#define ORRERY_MESSAGE_KEY(Name, Identifier, ArgumentCount)            \
    struct Name : ::orrery::except::MessageKey<Name, ArgumentCount> {  \
        using MessageKey::MessageKey;                                  \
        static constexpr std::string_view identifierText = Identifier; \
    }
