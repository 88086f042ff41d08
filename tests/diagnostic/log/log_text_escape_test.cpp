// Tests of the escaping of texts written into a warning log.
#include "diagnostic/log/log_text_escape.hpp"

#include <orrery/text/text.hpp>

#include <gtest/gtest.h>

#include <string>

using orrery::lang::diagnostic::escapeLogText;

TEST(LogTextEscape, ReplacesWhatXmlOrTheLogWouldMisreadAndNothingElse) {
    struct Case {
        const char* name;
        std::u16string text;
        std::u16string escaped;
    };
    const Case cases[] = {
        {"markup and hash", u"a<b & 'd' #1 \"q\"", u"a&lt;b &amp; &apos;d&apos; ##1 &quot;q&quot;"},
        {"empty", u"", u""},
        {"line breaks escaped, tab kept", u"x\ny\r\tz", u"x#a#y#d#\tz"},
        {"controls", std::u16string{0, 8, 0x1F, 0x7F, 0x85, 0x9F}, u"#0##8##1f##7f##85##9f#"},
        {"edges written as they are", u"\u0020\u007e\u00a0\ud7ff\ue000\ufdcf\ufdf0\ufffd",
         u"\u0020\u007e\u00a0\ud7ff\ue000\ufdcf\ufdf0\ufffd"},
        {"noncharacters", u"\ufdd0\ufdef\ufffe\uffff", u"#fdd0##fdef##fffe##ffff#"},
        {"a pair escaped unit by unit", u"\U0001F600", u"#d83d##de00#"},
        {"lone surrogates", std::u16string{0xDC00, u'a', 0xD800}, u"#dc00#a#d800#"},
        {"hash next to an escape", u"#\n#", u"###a###"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(escapeLogText(c.text), c.escaped);
    }
}
