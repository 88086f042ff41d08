// The catalogued exception base, message keys and the legacy error report.
#include <orrery/catalogue/catalogue.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <mutex>
#include <utility>

namespace orrery::except {

std::string MessageID::identifier() const { return component + ":" + mnemonic; }

std::u16string MessageID::text() const { return catalogue::formatMessage(identifier(), arguments); }

// The key of a failure and, once read, its text: shared by the failure's copies.
struct IMsgIDException::Text {
    explicit Text(MessageID k) : key(std::move(k)) {}

    MessageID key;
    std::once_flag once;
    std::u16string utf16;
    std::string utf8;
};

IMsgIDException::IMsgIDException(std::string identifier, MessageID key)
    : identifier_(std::move(identifier)), text_(std::make_shared<Text>(std::move(key))) {}

IMsgIDException::~IMsgIDException() = default;

const MessageID& IMsgIDException::key() const noexcept { return text_->key; }

// A formatting that raises leaves the text unmade, for the next read to try again.
// The UTF-8 form shows a unit that is not text (an unpaired surrogate from an
// argument) as U+FFFD, so that reading it cannot fail.
const IMsgIDException::Text& IMsgIDException::formatted() const {
    Text& text = *text_;
    std::call_once(text.once, [&text] {
        std::u16string utf16 = text.key.text();
        text.utf8 = text::utf16ToUtf8Lossy(utf16);
        text.utf16 = std::move(utf16);
    });
    return text;
}

const std::u16string& IMsgIDException::message() const { return formatted().utf16; }

const char* IMsgIDException::what() const noexcept {
    try {
        return formatted().utf8.c_str();
    } catch (...) {
        return "(the catalogue text of this failure cannot be formatted)";
    }
}

namespace {
LegacyErrorListener& legacyListener() {
    static LegacyErrorListener listener;
    return listener;
}
}  // namespace

void legacyErrorReport(const IMsgIDException& failure) {
    QException::LastError::Set(failure);
    if (const auto& listener = legacyListener()) listener(failure);
}

LegacyErrorListener setLegacyErrorListener(LegacyErrorListener listener) {
    return std::exchange(legacyListener(), std::move(listener));
}

}  // namespace orrery::except
