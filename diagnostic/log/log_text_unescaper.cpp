// The "#" escapes of warning log texts, undone.
#include "diagnostic/log/log_text_unescaper.hpp"

#include "diagnostic/log/xml_parser_ids.hpp"

#include <orrery/except/throw_message.hpp>

#include <cstdint>

namespace orrery::lang::diagnostic {
namespace {

namespace ids = orrery::diagnostic::ids;

// The value of a hexadecimal digit, or -1.
int hexDigitValue(char16_t c) {
    if (c >= u'0' && c <= u'9') return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return -1;
}

// The code unit of the escape body between two "#" (not empty). Digits beyond
// the eighth shift out of the 32-bit number, as reading it as unsigned 32-bit
// keeps only its low bits; the unit is its low 16 bits.
char16_t escapedUnit(std::u16string_view body) {
    std::uint32_t value = 0;
    for (char16_t c : body) {
        const int digit = hexDigitValue(c);
        if (digit < 0) {
            std::u16string entry;
            entry.reserve(body.size() + 2);
            entry.append(1, u'#').append(body).append(1, u'#');
            except::throwMessage(ids::XmlInvalidHexEntry(std::move(entry)));
        }
        value = (value << 4) | static_cast<std::uint32_t>(digit);
    }
    return static_cast<char16_t>(value & 0xFFFFu);
}

}  // namespace

std::u16string unescapeLogText(std::u16string_view text) {
    std::u16string result;
    result.reserve(text.size());
    std::size_t done = 0;
    for (std::size_t open = text.find(u'#'); open != std::u16string_view::npos; open = text.find(u'#', done)) {
        result.append(text.substr(done, open - done));
        const std::size_t close = text.find(u'#', open + 1);
        if (close == std::u16string_view::npos)
            except::throwMessage(
                ids::XmlUnmatchedEscapedCharacter(std::u16string(u"#"), std::u16string(text.substr(open))));
        if (close == open + 1)
            result.push_back(u'#');
        else
            result.push_back(escapedUnit(text.substr(open + 1, close - open - 1)));
        done = close + 1;
    }
    result.append(text.substr(done));
    return result;
}

std::u16string unescapeLogText(std::u16string&& text) {
    if (text.find(u'#') == std::u16string::npos) return std::move(text);
    return unescapeLogText(std::u16string_view(text));
}

}  // namespace orrery::lang::diagnostic
