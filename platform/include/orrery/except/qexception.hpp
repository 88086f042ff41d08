// QException: the language's error object, and the last-error record.
#pragma once

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/export.hpp>
#include <orrery/value/value_array.hpp>

#include <atomic>
#include <exception>
#include <optional>
#include <string>
#include <variant>

namespace orrery::except {

class QExceptionEnvelope;

/// A user error: identifier (UTF-8, may be empty), message (UTF-16), stack array
/// and the name of the function that reported it (empty for none).
class ORRERY_API QException : public std::exception {
public:
    QException(std::string identifier, std::u16string message, value::ValueArray stack, std::string functionName);
    /// Takes over the parts of an envelope; one without a stack gets the current call stack.
    explicit QException(QExceptionEnvelope&& envelope);
    ~QException() override;
    QException(const QException&) = default;
    QException(QException&&) noexcept = default;
    QException& operator=(const QException&) = default;
    QException& operator=(QException&&) noexcept = default;

    const std::string& identifier() const noexcept { return identifier_; }
    const std::u16string& message() const noexcept { return message_; }
    const value::ValueArray& stack() const noexcept { return stack_; }
    const std::string& functionName() const noexcept { return functionName_; }
    /// The message as UTF-8, made on the first call.
    const char* what() const noexcept override;

    /// The last error the interpreter recorded, kept by the current virtual
    /// machine. Without a machine Get answers an empty record and Set does nothing.
    class ORRERY_API LastError {
    public:
        struct Record {
            std::string identifier;
            std::u16string message;
            std::optional<value::ValueArray> stack;
        };
        static Record Get();
        static void Set(std::string identifier, std::u16string message, std::optional<value::ValueArray> stack);
        /// Records a catalogued failure: its identifier and, with no stack, its text,
        /// which is formatted only when Get reads it.
        static void Set(const IMsgIDException& failure);

        /// What a machine keeps: a record, or a catalogued failure not yet read.
        using Kept = std::variant<Record, IMsgIDException>;
    };

private:
    /// A message as UTF-8, made on the first request and kept: most errors are
    /// caught and read as UTF-16, or not read at all. A copy or a copy-assignment
    /// starts without it, a move takes it along. Safe to request from several threads.
    class Utf8Text {
    public:
        Utf8Text() noexcept = default;
        Utf8Text(const Utf8Text& /*other*/) noexcept {}
        Utf8Text(Utf8Text&& other) noexcept : text_(other.text_.exchange(nullptr)) {}
        Utf8Text& operator=(const Utf8Text& other) noexcept {
            if (this != &other) reset(nullptr);
            return *this;
        }
        Utf8Text& operator=(Utf8Text&& other) noexcept {
            if (this != &other) reset(other.text_.exchange(nullptr));
            return *this;
        }
        ~Utf8Text() { reset(nullptr); }

        /// The message's UTF-8 form, made now if this is the first request.
        const char* of(const std::u16string& message) const noexcept;

    private:
        void reset(std::string* text) noexcept { delete text_.exchange(text); }
        mutable std::atomic<std::string*> text_{nullptr};
    };

    std::string identifier_;
    std::u16string message_;
    value::ValueArray stack_;
    std::string functionName_;
    Utf8Text text_;  // after message_, which it renders
};

}  // namespace orrery::except
