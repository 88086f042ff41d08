// QExceptionEnvelope: builds a user error and raises it as a QException.
#pragma once

#include <orrery/catalogue/message_content.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/export.hpp>

#include <optional>
#include <string>

namespace orrery::except {

/// Collects the parts of a user error, then raises it with DoThrow.
class ORRERY_API QExceptionEnvelope {
public:
    /// stack: the error's stack array, or none for the current call stack.
    /// flag: kept for the host; always 1 from the diagnostic built-ins.
    QExceptionEnvelope(std::string identifier, std::u16string message, std::optional<value::ValueArray> stack,
                       int flag);
    /// From a catalogue message: its identifier and formatted text, no stack.
    explicit QExceptionEnvelope(const catalogue::MessageContent& content);

    /// The function reported as the error's origin ("" for none).
    void SetFuncName(std::string name) { functionName_ = std::move(name); }
    /// Raises the error as a QException; the envelope's parts move into it. Inline,
    /// so that the error leaves from the caller's own frame: every frame between the
    /// raise and the handler is visited twice by the unwinder, which is most of the
    /// cost of an error.
    [[noreturn]] [[gnu::always_inline]] void DoThrow() { throw QException(std::move(*this)); }

private:
    friend class QException;

    std::string identifier_;
    std::u16string message_;
    std::optional<value::ValueArray> stack_;
    std::string functionName_;
};

}  // namespace orrery::except
