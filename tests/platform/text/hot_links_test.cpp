// Tests of the removal of the console's hyperlink mark-up.
#include <orrery/text/hot_links.hpp>

#include <gtest/gtest.h>

using orrery::text::ioStripHotLinks;

TEST(StripHotLinks, KeepsTheLabelOfEachWellFormedLinkAndLeavesMalformedMarkup) {
    const std::pair<const char*, const char*> cases[] = {
        {"no mark-up at all", "no mark-up at all"},
        {"See <a href=\"help:x\">the help</a>.", "See the help."},
        {"<a href=\"a\">one</a> and <a href='b'>two</a>", "one and two"},
        {"<a href=\"it's\">quote inside</a>", "quote inside"},
        {"multi-line <a href=\"x\">la\nbel</a>", "multi-line la\nbel"},
        // Malformed mark-up stays as it is.
        {"<a href=\"x\">never closed", "<a href=\"x\">never closed"},
        {"<a href=x>unquoted</a>", "<a href=x>unquoted</a>"},
        {"<a href=\"x>unterminated</a>", "<a href=\"x>unterminated</a>"},
        {"<A HREF=\"x\">upper</A>", "<A HREF=\"x\">upper</A>"},
        {"<a href=\"x\"", "<a href=\"x\""},
        // An unclosed link stays; the link nested in it is removed.
        {"<a href=\"x\">one <a href=\"y\">two</a>", "<a href=\"x\">one two"},
    };
    for (const auto& [input, expected] : cases) {
        SCOPED_TRACE(input);
        EXPECT_EQ(ioStripHotLinks(input), expected);
    }
}

// The work is counted, so a pass that searched to the text's end from every
// opening (the same output, in quadratic time) fails.
TEST(StripHotLinks, LongRunsOfOpeningsStayLinear) {
    const std::pair<std::string_view, std::string_view> runs[] = {
        {"<a href=\"x\">", "<a href=\"x\">"},
        {"<a href=\"x", "<a href=\"x"},
        {"<a href=\"x\">label<", "<a href=\"x\">label<"},
        {"<a href=\"x\">y</a>", "y"},
    };
    for (const auto& [run, stripped] : runs) {
        SCOPED_TRACE(run);
        std::string many;
        std::string expected;
        for (int i = 0; i < 20000; ++i) {
            many += run;
            expected += stripped;
        }
        std::size_t examined = 0;
        EXPECT_EQ(ioStripHotLinks(many, examined), expected);
        EXPECT_LE(examined, 3 * many.size());
    }
}
