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

bool isMarkup(char16_t c) { return c == u'"' || c == u'#' || c == u'&' || c == u'\'' || c == u'<' || c == u'>'; }

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

// A unit written as one byte, as it is.
bool isPlainAscii(char16_t c) { return c >= 0x20 && c <= 0x7E && !isMarkup(c); }

// One unit that is not plain ASCII: markup, a unit written as it is in UTF-8, or an escape.
char* putEscaped(char* next, char16_t c) {
    switch (c) {
        case u'"': return put(next, "&quot;");
        case u'#': return put(next, "##");
        case u'&': return put(next, "&amp;");
        case u'\'': return put(next, "&apos;");
        case u'<': return put(next, "&lt;");
        case u'>': return put(next, "&gt;");
        case u'\t': *next = '\t'; return next + 1;
        default: return isWrittenAsItIs(c) ? putUnit(next, c) : putHexEscape(next, c);
    }
}

}  // namespace

// Plain ASCII, by far the most common text, is copied a run at a time; the rest
// grows the output by the most one unit can become, cut back afterwards.
void appendEscapedLogText(std::string& out, std::u16string_view text) {
    std::size_t i = 0;
    while (i < text.size()) {
        std::size_t run = i;
        while (run < text.size() && isPlainAscii(text[run])) ++run;
        if (run > i) {
            const std::size_t start = out.size();
            out.resize(start + (run - i));
            char* next = out.data() + start;
            for (; i < run; ++i) *next++ = static_cast<char>(text[i]);
            if (i == text.size()) break;
        }
        const std::size_t start = out.size();
        out.resize(start + kLongestEscape);
        char* const end = putEscaped(out.data() + start, text[i++]);
        out.resize(static_cast<std::size_t>(end - out.data()));
    }
}

std::string escapeLogText(std::u16string_view text) {
    std::string out;
    appendEscapedLogText(out, text);
    return out;
}

}  // namespace orrery::lang::diagnostic
