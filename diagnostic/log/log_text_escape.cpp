// The escaping of texts written into a warning log.
#include "diagnostic/log/log_text_escape.hpp"

namespace orrery::lang::diagnostic {
namespace {

// Room reserved beyond the input for a few escapes, so that typical text needs no regrowth.
constexpr std::size_t kEscapeHeadroom = 20;

bool isWrittenAsItIs(char16_t c) {
    return c == u'\t' || (c >= 0x20 && c <= 0x7E) || (c >= 0xA0 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFDCF) ||
           (c >= 0xFDF0 && c <= 0xFFFD);
}

bool isMarkup(char16_t c) { return c == u'"' || c == u'#' || c == u'&' || c == u'\'' || c == u'<' || c == u'>'; }

void appendHexEscape(std::u16string& out, char16_t c) {
    constexpr char16_t kDigits[] = u"0123456789abcdef";
    char16_t digits[4];
    int count = 0;
    unsigned value = c;
    do {
        digits[count++] = kDigits[value & 0xFU];
        value >>= 4U;
    } while (value != 0);
    out += u'#';
    while (count > 0) out += digits[--count];
    out += u'#';
}

}  // namespace

void appendEscapedLogText(std::u16string& out, std::u16string_view text) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (isWrittenAsItIs(c) && !isMarkup(c)) continue;
        out.append(text.substr(start, i - start));  // the plain run before c, in one piece
        start = i + 1;
        switch (c) {
            case u'"': out += u"&quot;"; break;
            case u'#': out += u"##"; break;
            case u'&': out += u"&amp;"; break;
            case u'\'': out += u"&apos;"; break;
            case u'<': out += u"&lt;"; break;
            case u'>': out += u"&gt;"; break;
            default: appendHexEscape(out, c);
        }
    }
    out.append(text.substr(start));
}

std::u16string escapeLogText(std::u16string_view text) {
    std::u16string out;
    out.reserve(text.size() + kEscapeHeadroom);
    appendEscapedLogText(out, text);
    return out;
}

}  // namespace orrery::lang::diagnostic
