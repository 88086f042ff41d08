// QException, its envelope and the last-error record.
#include <orrery/except/qexception.hpp>
#include <orrery/except/qexception_envelope.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/text/text.hpp>

#include <memory>
#include <new>

namespace orrery::except {
namespace {

// The current machine's last error, or null without a machine.
QException::LastError::Kept* lastError() noexcept {
    interp::VirtualMachine* machine = interp::currentLocalVirtualMachine();
    return machine != nullptr ? &machine->lastError() : nullptr;
}

// The message as UTF-8 for what(); a message that is not valid UTF-16 still
// yields readable text rather than a second failure.
std::string describe(const std::u16string& message) {
    try {
        return text::utf16ToUtf8(message);
    } catch (const std::exception&) {
        return "(message holds invalid text)";
    }
}

}  // namespace

QException::QException(std::string identifier, std::u16string message, value::ValueArray stack,
                       std::string functionName)
    : identifier_(std::move(identifier)),
      message_(std::move(message)),
      stack_(std::move(stack)),
      functionName_(std::move(functionName)) {}

QException::QException(QExceptionEnvelope&& envelope)
    : identifier_(std::move(envelope.identifier_)),
      message_(std::move(envelope.message_)),
      stack_(envelope.stack_ ? std::move(*envelope.stack_) : interp::currentStack(0)),
      functionName_(std::move(envelope.functionName_)) {}

QException::~QException() = default;

const char* QException::what() const noexcept { return text_.of(message_); }

const char* QException::Utf8Text::of(const std::u16string& message) const noexcept {
    if (const std::string* made = text_.load(std::memory_order_acquire)) return made->c_str();
    try {
        auto made = std::make_unique<std::string>(describe(message));
        std::string* first = nullptr;
        if (text_.compare_exchange_strong(first, made.get(), std::memory_order_acq_rel, std::memory_order_acquire))
            return made.release()->c_str();
        return first->c_str();  // another thread made it first
    } catch (const std::bad_alloc&) {
        return "(no memory to show the message)";
    }
}

QException::LastError::Record QException::LastError::Get() {
    const Kept* kept = lastError();
    if (kept == nullptr) return {};
    if (const auto* record = std::get_if<Record>(kept)) return *record;
    const auto& failure = std::get<IMsgIDException>(*kept);
    return {failure.identifier(), failure.message(), std::nullopt};
}

void QException::LastError::Set(std::string identifier, std::u16string message,
                                std::optional<value::ValueArray> stack) {
    if (Kept* kept = lastError()) *kept = Record{std::move(identifier), std::move(message), std::move(stack)};
}

void QException::LastError::Set(const IMsgIDException& failure) {
    if (Kept* kept = lastError()) *kept = failure;
}

QExceptionEnvelope::QExceptionEnvelope(std::string identifier, std::u16string message,
                                       std::optional<value::ValueArray> stack, int /*flag*/)
    : identifier_(std::move(identifier)), message_(std::move(message)), stack_(std::move(stack)) {}

QExceptionEnvelope::QExceptionEnvelope(const catalogue::MessageContent& content)
    : identifier_(content.identifier), message_(content.text()) {}

}  // namespace orrery::except
