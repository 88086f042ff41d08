// Tests of the UTF conversions and case-insensitive comparison.
#include "tests/support/expect_error.hpp"

#include <orrery/text/text.hpp>

using namespace orrery::text;

TEST(Text, RoundTripsUtf8ThroughUtf16AndRejectsMalformedText) {
    const std::string samples[] = {"", "plain", "caf\xC3\xA9", "\xF0\x9F\x98\x80 smile", "a\nb\tc"};
    for (const auto& sample : samples) {
        SCOPED_TRACE(sample);
        EXPECT_EQ(utf16ToUtf8(utf8ToUtf16(sample)), sample);
    }
    EXPECT_EQ(utf8ToUtf16("\xF0\x9F\x98\x80"), std::u16string(u"\xD83D\xDE00"));
    for (const std::string bad : {"\xC3", "\xFF", "a\x80z", "\xED\xA0\x80"}) {
        EXPECT_MSGID(utf8ToUtf16(bad), "ORRERY:text:invalidUtf8");
    }
    EXPECT_MSGID(utf16ToUtf8(std::u16string(1, u'\xD800')), "ORRERY:text:invalidUtf16");
    EXPECT_MSGID(utf16ToUtf8(std::u16string(u"x") + char16_t(0xDC00)), "ORRERY:text:invalidUtf16");
}

TEST(Text, AsciiConversionStopsAtTheFirstWideCharacter) {
    EXPECT_EQ(utf16ToAscii(u"ORRERY:a:b"), "ORRERY:a:b");
    EXPECT_EQ(utf16ToAscii(std::u16string(1, u'\x7F')), "\x7F");
    EXPECT_MSGID_TEXT(utf16ToAscii(u"caf\u00E9"), "ORRERY:text:invalidCharacter", "Invalid character error.");
}

TEST(Text, ComparesIgnoringCase) {
    EXPECT_TRUE(equalsIgnoreCase(u"Log.XML", u"log.xml"));
    EXPECT_TRUE(equalsIgnoreCase(u"\u00C9T\u00C9", u"\u00E9t\u00E9"));
    EXPECT_FALSE(equalsIgnoreCase(u"a.xml", u"b.xml"));
    EXPECT_LT(compareIgnoreCase(u"A", u"b"), 0);
    EXPECT_TRUE(equalsIgnoreCaseAscii("RESET", "reset"));
    EXPECT_FALSE(equalsIgnoreCaseAscii("reset ", "reset"));
    EXPECT_TRUE(CaseInsensitiveLess{}(u"alpha", u"BETA"));
}
