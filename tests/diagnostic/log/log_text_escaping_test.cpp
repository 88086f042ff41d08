// Tests of the log's "#" escapes: written by the escaper, undone by the unescaper.
#include "diagnostic/log/log_text_escape.hpp"
#include "diagnostic/log/log_text_unescaper.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/text/text.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using orrery::catalogue::MessageArgument;
using orrery::lang::diagnostic::escapeLogText;
using orrery::lang::diagnostic::unescapeLogText;

TEST(LogTextEscape, ReplacesWhatXmlOrTheLogWouldMisreadAndTheUnescaperUndoesIt) {
    struct Case {
        const char* name;
        std::u16string text;
        std::u16string escaped;
    };
    const Case cases[] = {
        {"line breaks escaped, tab kept", u"x\ny\r\tz", u"x#a#y#d#\tz"},
        {"controls", std::u16string{0, 8, 0x1F, 0x7F, 0x85, 0x9F}, u"#0##8##1f##7f##85##9f#"},
        {"edges written as they are", u"\u0020\u007e\u00a0\ud7ff\ue000\ufdcf\ufdf0\ufffd",
         u"\u0020\u007e\u00a0\ud7ff\ue000\ufdcf\ufdf0\ufffd"},
        {"noncharacters", u"\ufdd0\ufdef\ufffe\uffff", u"#fdd0##fdef##fffe##ffff#"},
        {"lone surrogates", std::u16string{0xDC00, u'a', 0xD800}, u"#dc00#a#d800#"},
        {"hash next to an escape", u"#\n#", u"###a###"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(escapeLogText(c.text), orrery::text::utf16ToUtf8(c.escaped));
        EXPECT_EQ(unescapeLogText(std::u16string_view(c.escaped)), c.text);
    }
    // Markup becomes entities, which the XML parser undoes before the unescaper sees the text.
    EXPECT_EQ(escapeLogText(u"a<b & 'd' \"q\""), "a&lt;b &amp; &apos;d&apos; &quot;q&quot;");
}

TEST(LogTextUnescaper, ReadsAnyCaseAndLengthOfHexadecimalAndRefusesBadEscapes) {
    struct Case {
        std::u16string escaped;
        std::u16string text;
    };
    const Case cases[] = {
        {u"plain <text>", u"plain <text>"},
        {u"#FFFE#", u"\uFFFE"},
        {u"#10041#", u"A"},  // the low 16 bits of the number
        {u"#0000000041#", u"A"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(orrery::text::utf16ToUtf8(c.escaped));
        EXPECT_EQ(unescapeLogText(std::u16string_view(c.escaped)), c.text);
        EXPECT_EQ(unescapeLogText(std::u16string(c.escaped)), c.text);
    }
    struct Failure {
        std::u16string escaped;
        const char* identifier;
        std::vector<MessageArgument> arguments;
    };
    const Failure failures[] = {
        {u"ok ## then # #", "InvalidHexEntry", {u"# #"}},
        {u"#-1#", "InvalidHexEntry", {u"#-1#"}},
        {u"abc#41", "UnmatchedEscapedCharacter", {u"#", u"#41"}},
        {u"a###", "UnmatchedEscapedCharacter", {u"#", u"#"}},
    };
    for (const Failure& f : failures) {
        SCOPED_TRACE(orrery::text::utf16ToUtf8(f.escaped));
        EXPECT_MSGID_ARGS(unescapeLogText(std::u16string_view(f.escaped)),
                          std::string("ORRERY:warning:XMLParser:") + f.identifier, f.arguments);
    }
}
