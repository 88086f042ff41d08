// The escaping of texts written into a warning log, straight into UTF-8.
#include "diagnostic/log/log_text_escape.hpp"

#include <unicode/utf8.h>

#include <cstdint>
#include <cstring>

namespace orrery::lang::diagnostic {
namespace {

// The most bytes one code unit becomes: "&quot;", "&apos;" or "#ffff#".
constexpr std::size_t kLongestEscape = 6;

bool isWrittenAsItIs(char16_t c) {
    return c == u'\t' || (c >= 0x20 && c <= 0x7E) || (c >= 0xA0 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFDCF) ||
           (c >= 0xFDF0 && c <= 0xFFFD);
}

char* put(char* out, std::string_view text) {
    std::memcpy(out, text.data(), text.size());
    return out + text.size();
}

char* putHexEscape(char* out, char16_t c) {
    constexpr char kDigits[] = "0123456789abcdef";
    *out++ = '#';
    bool started = false;
    for (int shift = 12; shift >= 0; shift -= 4) {
        const unsigned digit = (static_cast<unsigned>(c) >> static_cast<unsigned>(shift)) & 0xFU;
        started = started || digit != 0 || shift == 0;
        if (started) *out++ = kDigits[digit];
    }
    *out++ = '#';
    return out;
}

// Appends one code unit that is written as it is, in UTF-8.
char* putUnit(char* out, char16_t c) {
    auto* bytes = reinterpret_cast<std::uint8_t*>(out);
    std::size_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, c);
    return out + length;
}

}  // namespace

// The output grows once by the most the text can become, is written through a
// pointer, and is cut back to what was written.
void appendEscapedLogText(std::string& out, std::u16string_view text) {
    const std::size_t start = out.size();
    out.resize(start + kLongestEscape * text.size());
    char* next = out.data() + start;
    for (const char16_t c : text) {
        switch (c) {
            case u'"': next = put(next, "&quot;"); break;
            case u'#': next = put(next, "##"); break;
            case u'&': next = put(next, "&amp;"); break;
            case u'\'': next = put(next, "&apos;"); break;
            case u'<': next = put(next, "&lt;"); break;
            case u'>': next = put(next, "&gt;"); break;
            default:
                if (c < 0x80 && isWrittenAsItIs(c))
                    *next++ = static_cast<char>(c);
                else
                    next = isWrittenAsItIs(c) ? putUnit(next, c) : putHexEscape(next, c);
        }
    }
    out.resize(static_cast<std::size_t>(next - out.data()));
}

std::string escapeLogText(std::u16string_view text) {
    std::string out;
    appendEscapedLogText(out, text);
    return out;
}

}  // namespace orrery::lang::diagnostic
