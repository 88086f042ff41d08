// Tests of reading warning log files: records, the closing tag's position, every
// refusal with its arguments, block boundaries, zones and hostile files.
#include "diagnostic/log/warning_log_reader.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/interp/dates.hpp>
#include <orrery/text/text.hpp>

#include <gtest/gtest.h>
#include <boost/lexical_cast.hpp>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

using namespace orrery;
using catalogue::MessageArgument;
using lang::PrintfArgument;
using lang::StackFrame;
using lang::diagnostic::findLogEnd;
using lang::diagnostic::readWarningLogFile;
using lang::diagnostic::Warning;
using test::kFooter;
using test::kHeader;

namespace {

const std::string kStart = R"(<warning identifier="a:b" wasDisabled="false" time="2024-03-01 10:00:00.250 +0100">)";

/// A log made of the header, the given elements and the footer.
std::string logOf(const std::string& elements) { return kHeader + elements + kFooter; }

/// A warning element with the given content, inside a whole log.
std::string logWithWarning(const std::string& content) { return logOf(kStart + content + "</warning>\n"); }

class WarningLogReader : public testing::Test {
protected:
    /// Writes content to the test's file and answers its path.
    std::u16string fileWith(const std::string& content) {
        std::ofstream(text::utf16ToUtf8(path_), std::ios::binary | std::ios::trunc) << content;
        return path_;
    }
    std::vector<Warning> read(const std::string& content) { return readWarningLogFile(fileWith(content)); }

    test::TemporaryWorkingFolder folder_;
    std::u16string path_ = folder_.file("read.xml");
};

double serial(double year, double month, double day, double hour, double minute, double seconds) {
    return interp::datenumFromDatevec(year, month, day, hour, minute, seconds);
}

}  // namespace

TEST_F(WarningLogReader, ReadsRecordsWithEscapedTextsArgumentsAndFrames) {
    const test::ZoneScope utc("UTC");
    const std::string content =
        logOf(kStart +
              "\n        <message>x#a#y &lt;&amp;&quot;&apos;&gt; ##1 \xC3\xA9 #d83d##de00#</message>\n"
              "        <format>%s\t%d</format>\n"
              "        <arg type=\"char\">65</arg>\n        <arg type=\"int32\">-7</arg>\n"
              "        <arg type=\"string\"></arg>\n"
              "        <frame file=\"/a/f#a#.orr\" name=\"f\" line=\"0\"/>\n"
              "        <frame FILE=\"g.orr\" Name=\"g\" line=\"4294967295\"/>\n    </warning>\n"
              "    <warning Identifier=\"\" wasDisabled=\"true\" time=\"2023-11-30 23:59:59,999 -0500\">\n"
              "        <message></message>\n        <format></format>\n    </warning>\n");
    const auto warnings = read(content);
    ASSERT_EQ(warnings.size(), 2U);

    Warning first;
    first.setIdentifier("a:b");
    first.setMessage(u"x\ny <&\"'> #1 \u00E9 \U0001F600");
    first.setFormat(u"%s\t%d");
    first.setArguments({std::u16string(u"A"), std::int32_t{-7}, std::u16string()});
    first.setStack({StackFrame{u"/a/f\n.orr", u"f", 0}, StackFrame{u"g.orr", u"g", 4294967295U}});
    first.setTime(serial(2024, 3, 1, 9, 0, 0.25));
    EXPECT_EQ(warnings[0], first);
    EXPECT_EQ(warnings[0].getArguments(), first.getArguments());

    Warning second;
    second.setWasDisabled(true);
    second.setTime(serial(2023, 12, 1, 4, 59, 59.999));
    EXPECT_EQ(warnings[1], second);
    EXPECT_EQ(findLogEnd(fileWith(content)), content.size() - kFooter.size());

    // An empty log, and a lone warning with no log around it.
    EXPECT_TRUE(read("<log/>").empty());
    EXPECT_EQ(read(kStart + "<message>m</message></warning>").size(), 1U);
    EXPECT_EQ(findLogEnd(fileWith(kStart + "</warning>")), 0U);
}

TEST_F(WarningLogReader, MovesTimesFromTheFilesZoneToTheReadersStandardZone) {
    struct Case {
        const char* zone;
        const char* time;
        double expected;
    };
    const Case cases[] = {
        {"EST5EDT,M3.2.0,M11.1.0", "2024-07-01 10:00:00.000 +0100", serial(2024, 7, 1, 4, 0, 0)},
        {"UTC", "2024-03-01 00:10:07.5 +0000", serial(2024, 3, 1, 0, 10, 7.005)},  // a count of milliseconds
        {"UTC", "2024-03-01 10:00:00.000 -03-30", serial(2024, 3, 1, 10, 3, 0)},   // the zone reads as -3
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.zone) + " " + c.time);
        const test::ZoneScope zone(c.zone);
        const auto warnings = read(
            logOf("<warning identifier=\"\" wasDisabled=\"false\" time=\"" + std::string(c.time) + "\"></warning>"));
        ASSERT_EQ(warnings.size(), 1U);
        EXPECT_NEAR(warnings[0].getTime(), c.expected, 1e-9);
    }
}

TEST_F(WarningLogReader, RefusesEachBreachWithItsIdentifierAndArguments) {
    struct Case {
        const char* what;
        std::string content;
        const char* identifier;
        std::vector<MessageArgument> arguments;
    };
    const Case cases[] = {
        {"empty file", "", "ParseError", {u"no element found", 1.0, 1.0}},
        {"truncated", kHeader + "<warn", "ParseError", {u"unclosed token", 3.0, 1.0}},
        {"unknown element", logOf("<Warning/>"), "UnknownElement", {u"Warning"}},
        {"nested log", logOf("<log/>"), "NestedLog", {}},
        {"log attribute", "<log version=\"1\"/>", "UnknownAttribute", {u"log", u"version"}},
        {"nested warning", logWithWarning(kStart), "NestedWarning", {}},
        {"message outside a warning", logOf("<message/>"), "UnexpectedElement", {u"message"}},
        {"attributes are checked first", logOf("<format a=\"\"/>"), "UnknownAttribute", {u"format", u"a"}},
        {"frame in a message", logWithWarning("<message><frame/></message>"), "ImmutableElement", {u"frame"}},
        {"first missing name", logOf("<warning identifier=\"\"/>"), "MissingAttribute", {u"warning", u"time"}},
        {"a name twice in two cases",
         logOf("<warning identifier=\"\" IDENTIFIER=\"\"/>"),
         "UnknownAttribute",
         {u"warning", u"IDENTIFIER"}},
        {"identifier with a blank",
         logOf("<warning identifier=\"a b\" wasDisabled=\"\" time=\"\"/>"),
         "InvalidIdentifier",
         {u"a b"}},
        {"wasDisabled in capitals",
         logOf("<warning identifier=\"a:b\" wasDisabled=\"TRUE\" time=\"\"/>"),
         "InvalidWasDisabled",
         {u"TRUE"}},
        {"time without milliseconds",
         logOf("<warning identifier=\"a:b\" wasDisabled=\"true\" time=\"2024-03-01 10:00:00 +0100\"/>"),
         "InvalidTimeFormat",
         {}},
        {"unknown type", logWithWarning("<arg type=\"Int32\">1</arg>"), "InvalidArgType", {u"Int32"}},
        {"signed line", logWithWarning("<frame file=\"\" name=\"\" line=\"-1\"/>"), "InvalidLine", {u"-1"}},
        {"escape in a file",
         logWithWarning("<frame file=\"#4G#\" name=\"\" line=\"1\"/>"),
         "InvalidHexEntry",
         {u"#4G#"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_MSGID_ARGS(read(c.content), std::string("ORRERY:warning:XMLParser:") + c.identifier, c.arguments);
    }
    // Arguments and lines that do not convert raise the conversion's own failure.
    EXPECT_THROW(read(logWithWarning("<arg type=\"int32\">2147483648</arg>")), boost::bad_lexical_cast);
    EXPECT_THROW(read(logWithWarning("<frame file=\"\" name=\"\" line=\"4294967296\"/>")), boost::bad_lexical_cast);
}

TEST_F(WarningLogReader, ScanOnlySkipsTimesButChecksTheRest) {
    const std::string badTime = logOf("<warning identifier=\"a:b\" wasDisabled=\"false\" time=\"soon\"/>\n");
    EXPECT_EQ(findLogEnd(fileWith(badTime)), badTime.size() - kFooter.size());
    EXPECT_MSGID(findLogEnd(fileWith(logOf("<warning identifier=\"a::b\" wasDisabled=\"false\" time=\"\"/>"))),
                 "ORRERY:warning:XMLParser:InvalidIdentifier");
    EXPECT_MSGID(findLogEnd(fileWith("<log>")), "ORRERY:warning:XMLParser:ParseError");
}

TEST_F(WarningLogReader, MissingAndUnreadableFilesRaiseTheirLogFileIdentifiers) {
    const std::u16string missing = path_ + u".missing";
    EXPECT_MSGID_ARGS(readWarningLogFile(missing), "ORRERY:warning:LogFile:OpenFileRead",
                      (std::vector<MessageArgument>{missing, u"No such file or directory"}));
    const std::u16string folder = folder_.file("");
    EXPECT_MSGID_ARGS(findLogEnd(folder), "ORRERY:warning:LogFile:DirSpecified",
                      (std::vector<MessageArgument>{folder}));
}

// After the root element: whitespace, or the remains of an append cut short as
// the writer leaves them (its element less the bytes that go over the old footer,
// cut at any byte, with or without the new footer), which are not read.
TEST_F(WarningLogReader, IgnoresWhitespaceAndTheRemainsOfAnInterruptedAppendAfterTheLog) {
    const std::string content = logWithWarning("<message>m</message><format></format>");
    const std::string element =
        "    <warning identifier=\"a:b\" wasDisabled=\"true\" time=\"2024-03-01 10:00:00.250 "
        "+0100\">\n        <message>x #a# &lt;</message>\n        <format></format>\n    "
        "</warning>\n";
    const std::string remains = element.substr(kFooter.size()) + kFooter;
    EXPECT_EQ(read(content + " \n\t\r\n").size(), 1U);
    for (std::size_t cut = 1; cut <= remains.size(); ++cut) {
        SCOPED_TRACE("remains cut after " + std::to_string(cut) + " bytes");
        const std::string file = content + remains.substr(0, cut);
        EXPECT_EQ(read(file).size(), 1U);
        EXPECT_EQ(findLogEnd(fileWith(file)), content.size() - kFooter.size());
    }
}

// Anything else after the root element is junk, reported where it starts.
TEST_F(WarningLogReader, RefusesAnythingElseAfterTheLogWithTheParsersPosition) {
    const std::string content = logWithWarning("<message>m</message><format></format>");
    const std::size_t lines = static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n'));
    struct Case {
        const char* what;
        std::string after;
        std::size_t column;  // counted from 1 on the line after the log
    };
    const Case cases[] = {
        {"a second log", content, 1},
        {"a comment followed by an element", "<!-- c --><log/>", 11},
        {"text", "  text", 3},
        {"remains twice", "rning identifier=\"a:b\"" + kFooter + "rning", 1},
        {"remains after a comment", "<!-- c -->rning", 11},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_MSGID_ARGS(read(content + c.after), "ORRERY:warning:XMLParser:ParseError",
                          (std::vector<MessageArgument>{u"junk after document element", static_cast<double>(lines + 1),
                                                        static_cast<double>(c.column)}));
    }
}

// The file is fed in blocks of 1024 bytes: a short last block, or an empty final
// one after a full block, reads the same.
TEST_F(WarningLogReader, ReadsTheSameAcrossTheBlockBoundary) {
    const test::ZoneScope utc("UTC");
    for (std::size_t size : {1023U, 1024U, 1025U, 2048U}) {
        SCOPED_TRACE(size);
        const std::string element = kStart + "<message>m</message><format>";
        const std::string tail = "</format></warning>\n";
        const std::size_t fill = size - logOf(element + tail).size();
        const std::string content = logOf(element + std::string(fill, 'f') + tail);
        ASSERT_EQ(content.size(), size);
        const auto warnings = read(content);
        ASSERT_EQ(warnings.size(), 1U);
        EXPECT_EQ(warnings[0].getFormat(), std::u16string(fill, u'f'));
        EXPECT_EQ(findLogEnd(fileWith(content)), size - kFooter.size());
    }
}

// Entity expansion is cut off by the parser's amplification limit.
TEST_F(WarningLogReader, ExponentialEntityExpansionFailsPromptly) {
    std::string laughs = "<!DOCTYPE log [<!ENTITY l0 \"lollollollollollollollollollol\">\n";
    for (int i = 1; i <= 9; ++i) {
        const std::string ref = "&l" + std::to_string(i - 1) + ";";
        laughs += "<!ENTITY l" + std::to_string(i) + " \"" + ref + ref + ref + ref + ref + ref + ref + ref + ref + ref +
                  "\">\n";
    }
    laughs += "]>\n<log>" + kStart + "<message>&l9;</message></warning></log>\n";
    EXPECT_MSGID(read(laughs), "ORRERY:warning:XMLParser:ParseError");
    EXPECT_MSGID(findLogEnd(fileWith(laughs)), "ORRERY:warning:XMLParser:ParseError");
}
