// Tests of undoing the log's "#" escapes.
#include "diagnostic/log/log_text_unescaper.hpp"

#include "tests/support/expect_error.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using orrery::catalogue::MessageArgument;
using orrery::lang::diagnostic::unescapeLogText;

TEST(LogTextUnescaper, UndoesDoubledHashesAndHexadecimalEscapes) {
    struct Case {
        std::u16string escaped;
        std::u16string text;
    };
    const Case cases[] = {
        {u"", u""},
        {u"plain <text>", u"plain <text>"},
        {u"a##b#41#", u"a#bA"},
        {u"####", u"##"},
        {u"x#a#y#d#", u"x\ny\r"},
        {u"#0#", std::u16string(1, u'\0')},
        {u"#FFFE##fdd0#", u"\uFFFE\uFDD0"},
        {u"#d83d##de00#", u"\U0001F600"},  // one escape per surrogate
        {u"#10041#", u"A"},                // the low 16 bits of the number
        {u"#0000000041#", u"A"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.escaped.begin(), c.escaped.end()));
        EXPECT_EQ(unescapeLogText(std::u16string_view(c.escaped)), c.text);
        EXPECT_EQ(unescapeLogText(std::u16string(c.escaped)), c.text);
    }
}

TEST(LogTextUnescaper, RefusesNonHexadecimalAndUnclosedEscapes) {
    struct Case {
        std::u16string escaped;
        const char* identifier;
        std::vector<MessageArgument> arguments;
    };
    const Case cases[] = {
        {u"#4G#", "ORRERY:warning:XMLParser:InvalidHexEntry", {u"#4G#"}},
        {u"ok ## then # #", "ORRERY:warning:XMLParser:InvalidHexEntry", {u"# #"}},
        {u"#-1#", "ORRERY:warning:XMLParser:InvalidHexEntry", {u"#-1#"}},
        {u"abc#41", "ORRERY:warning:XMLParser:UnmatchedEscapedCharacter", {u"#", u"#41"}},
        {u"a###", "ORRERY:warning:XMLParser:UnmatchedEscapedCharacter", {u"#", u"#"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.escaped.begin(), c.escaped.end()));
        EXPECT_MSGID_ARGS(unescapeLogText(std::u16string_view(c.escaped)), c.identifier, c.arguments);
    }
}
