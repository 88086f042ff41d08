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

TEST(Text, LossyConversionsReplaceWhatTheStrictOnesRefuse) {
    const std::pair<std::u16string, std::string> toUtf8[] = {
        {u"caf\u00E9", "caf\xC3\xA9"},
        {u"\xD83D\xDE00", "\xF0\x9F\x98\x80"},
        {std::u16string(u"a") + char16_t(0xD800) + u"b",
         "a\xEF\xBF\xBD"
         "b"},
        {std::u16string(1, char16_t(0xDC00)) + u"\xD83D\xDE00", "\xEF\xBF\xBD\xF0\x9F\x98\x80"},
    };
    for (const auto& [utf16, utf8] : toUtf8) {
        SCOPED_TRACE(utf8);
        EXPECT_EQ(utf16ToUtf8Lossy(utf16), utf8);
    }
    const std::pair<std::string, std::u16string> toUtf16[] = {
        {"caf\xC3\xA9", u"caf\u00E9"},
        {"a\xFFz", u"a\uFFFDz"},
        {"\xC3", u"\uFFFD"},
        {"\xED\xA0\x80!", u"\uFFFD\uFFFD\uFFFD!"},
    };
    for (const auto& [utf8, utf16] : toUtf16) {
        SCOPED_TRACE(utf8);
        EXPECT_EQ(utf8ToUtf16Lossy(utf8), utf16);
    }
    EXPECT_MSGID(utf8ToUtf16("a\xFFz"), "ORRERY:text:invalidUtf8");
}

TEST(Text, DecodesTheFirstUtf8CharacterOrNothing) {
    const std::tuple<std::string, char32_t, std::size_t> good[] = {
        {"Az", U'A', 1},
        {"\xC3\xA9z", U'\u00E9', 2},
        {"\xE2\x82\xAC", U'\u20AC', 3},
        {"\xF0\x9F\x98\x80", U'\U0001F600', 4},
    };
    for (const auto& [utf8, codePoint, length] : good) {
        SCOPED_TRACE(utf8);
        const auto character = decodeUtf8(utf8);
        ASSERT_TRUE(character.has_value());
        EXPECT_EQ(character->codePoint, codePoint);
        EXPECT_EQ(character->length, length);
    }
    // Empty, a continuation byte, truncated, overlong, a surrogate, above U+10FFFF, never a lead byte.
    for (const std::string bad : {"", "\x80", "\xE2\x82", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"}) {
        SCOPED_TRACE(bad);
        EXPECT_FALSE(decodeUtf8(bad).has_value());
    }
}
