// The catalogued exception base, message keys and the legacy error report.
#include <orrery/catalogue/catalogue.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <utility>

namespace orrery::except {

std::string MessageID::identifier() const { return component + ":" + mnemonic; }

std::u16string MessageID::text() const { return catalogue::formatMessage(identifier(), arguments); }

IMsgIDException::IMsgIDException(std::string identifier, MessageID key)
    : identifier_(std::move(identifier)),
      key_(std::move(key)),
      text_(catalogue::formatMessageUtf8(key_.identifier(), key_.arguments)) {}

IMsgIDException::~IMsgIDException() = default;

std::u16string IMsgIDException::message() const { return text::utf8ToUtf16(text_); }

namespace {
LegacyErrorListener& legacyListener() {
    static LegacyErrorListener listener;
    return listener;
}
}  // namespace

void legacyErrorReport(const IMsgIDException& failure) {
    QException::LastError::Set(failure.identifier(), failure.message(), std::nullopt);
    if (const auto& listener = legacyListener()) listener(failure);
}

LegacyErrorListener setLegacyErrorListener(LegacyErrorListener listener) {
    return std::exchange(legacyListener(), std::move(listener));
}

}  // namespace orrery::except
