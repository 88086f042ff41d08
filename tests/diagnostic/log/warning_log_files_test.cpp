// Tests of warning log files: the exact bytes written, opening and closing by
// name, and failures of the file system.
#include "diagnostic/log/log_output_stream.hpp"
#include "diagnostic/log/warning_element.hpp"
#include "diagnostic/log/warning_log_xml.hpp"
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/interp/dates.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace orrery;
using lang::diagnostic::Warning;
using lang::diagnostic::WarningLogXML;
using test::fileBytes;
using test::kFooter;
using test::kHeader;

namespace {

using Arguments = std::vector<catalogue::MessageArgument>;

std::string elementBytes(const Warning& warning) {
    return text::utf16ToUtf8(lang::diagnostic::renderWarningElement(warning));
}

Warning goldenWarning() {
    Warning warning;
    warning.setIdentifier("test:golden");
    warning.setWasDisabled(true);
    warning.setTime(interp::datenumFromDatevec(2024, 3, 5, 14, 7, 9.25));
    warning.setMessage(u"a<b & 'd' \"q\" #1\nx\ty");
    warning.setFormat(u"%s %d");
    warning.setArguments({std::u16string(u"\U0001F600"), std::int32_t{-7}, std::uint32_t{4000000000U},
                          std::int64_t{-9000000000}, std::uint64_t{18446744073709551615U}, 0.1, std::u16string(u"#")});
    warning.setStack(std::vector<lang::StackFrame>{{u"/w/a&b.orr", u"f<g>", 12}, {u"", u"", 0}});
    return warning;
}

const std::string kGoldenElement =
    "    <warning identifier=\"test:golden\" wasDisabled=\"true\" time=\"2024-03-05 14:07:09.250 +0000\">\n"
    "        <message>a&lt;b &amp; &apos;d&apos; &quot;q&quot; ##1#a#x\ty</message>\n"
    "        <format>%s %d</format>\n"
    "        <arg type=\"string\">#d83d##de00#</arg>\n"
    "        <arg type=\"int32\">-7</arg>\n"
    "        <arg type=\"uint32\">4000000000</arg>\n"
    "        <arg type=\"int64\">-9000000000</arg>\n"
    "        <arg type=\"uint64\">18446744073709551615</arg>\n"
    "        <arg type=\"double\">0.1</arg>\n"
    "        <arg type=\"char\">35</arg>\n"
    "        <frame file=\"/w/a&amp;b.orr\" name=\"f&lt;g&gt;\" line=\"12\"/>\n"
    "        <frame file=\"\" name=\"\" line=\"0\"/>\n"
    "    </warning>\n";

/// Lets the process write no file beyond limit bytes, as a full disk would;
/// writing past it fails with EFBIG instead of raising SIGXFSZ.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t limit) {
        ::getrlimit(RLIMIT_FSIZE, &previous_);
        previousHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limited = previous_;
        limited.rlim_cur = limit;
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previousHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit previous_{};
    void (*previousHandler_)(int) = nullptr;
};

void warnWithoutArguments(WarningLogXML& log, const std::string& identifier) {
    log.warn(warning::utGetWarningManagerContext(), identifier, u"", 0, nullptr, u"text", false);
}

}  // namespace

// ---- the bytes of a log ---------------------------------------------------------------------

TEST(WarningLogFile, ANewLogIsACompleteEmptyDocumentAndAReopenedOneTakesTheNextWarningBeforeItsFooter) {
    const test::ZoneScope utc("UTC");
    const test::TemporaryWorkingFolder folder;
    const std::u16string path = folder.file("golden.xml");
    {
        const auto log = lang::diagnostic::openLogForWriting(path);
        EXPECT_EQ(fileBytes(path), kHeader + kFooter);
        test::expectWellFormedXml(path);
        log->writeElement(elementBytes(goldenWarning()));
        EXPECT_EQ(fileBytes(path), kHeader + kGoldenElement + kFooter);
    }
    const auto log = lang::diagnostic::openLogForWriting(path);
    EXPECT_EQ(fileBytes(path), kHeader + kGoldenElement + kFooter);
    log->writeElement(elementBytes(goldenWarning()));
    EXPECT_EQ(fileBytes(path), kHeader + kGoldenElement + kGoldenElement + kFooter);
    test::expectWellFormedXml(path);
}

// A file that is there but no log, a folder, or a new log that cannot be created:
// none is opened, and a second attempt fails the same way.
TEST(WarningLogFile, AFileThatIsNoLogOrCannotBeMadeIsNeitherOpenedNorChanged) {
    const test::TemporaryWorkingFolder folder;
    struct Case {
        const char* name;
        std::string bytes;
        const char* identifier;
    };
    const Case cases[] = {
        {"truncated.xml", kHeader + "    <warning identifier=\"a:b\"", "ORRERY:warning:XMLParser:ParseError"},
        {"empty.xml", "", "ORRERY:warning:XMLParser:ParseError"},
        {"other.xml", "<?xml version=\"1.0\"?>\n<html></html>\n", "ORRERY:warning:XMLParser:UnknownElement"},
        {"lone.xml", "<warning identifier=\"\" wasDisabled=\"true\" time=\"\"/>\n", "ORRERY:warning:LogFile:FileSeek"},
    };
    WarningLogXML log;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::u16string path = folder.file(c.name);
        std::ofstream(text::utf16ToUtf8(path), std::ios_base::binary) << c.bytes;
        for (int attempt = 0; attempt < 2; ++attempt) EXPECT_MSGID(log.openLog(path), c.identifier);
        EXPECT_EQ(fileBytes(path), c.bytes);
    }
    std::filesystem::create_directory("folder.xml");
    EXPECT_MSGID_ARGS(log.openLog(u"folder.xml"), "ORRERY:warning:LogFile:OpenFileAppend",
                      (Arguments{folder.file("folder.xml"), std::u16string(u"Is a directory")}));
    for (int attempt = 0; attempt < 2; ++attempt)
        EXPECT_MSGID_ARGS(log.openLog(u"missing/x"), "ORRERY:warning:LogFile:OpenFileWrite",
                          (Arguments{folder.file("missing/x.xml"), std::u16string(u"No such file or directory")}));
}

// ---- opening and closing by name ---------------------------------------------------------------

TEST(WarningLogFile, IsOpenedWrittenAndClosedByItsNormalisedNameWhateverItsSpelling) {
    const test::TemporaryWorkingFolder folder;
    const std::u16string a = folder.file("a.xml");
    WarningLogXML log;
    log.openLog(u"a");
    log.openLog(u"B");
    EXPECT_EQ(fileBytes(a), kHeader + kFooter);
    EXPECT_MSGID_ARGS(log.openLog(u"sub/../a.xml"), "ORRERY:warning:LogFile:FileOpen", (Arguments{a}));
    EXPECT_MSGID_ARGS(log.openLog(u"./A"), "ORRERY:warning:LogFile:FileOpenCase", (Arguments{a}));
    EXPECT_MSGID_ARGS(log.closeLog(u"c"), "ORRERY:warning:LogFile:FileNotOpen", (Arguments{folder.file("c.xml")}));
    warnWithoutArguments(log, "test:both");
    log.closeLog(u"./a.xml");
    EXPECT_MSGID_ARGS(log.closeLog(u"a"), "ORRERY:warning:LogFile:FileNotOpen", (Arguments{a}));
    warnWithoutArguments(log, "test:one");

    const std::string bytesOfA = fileBytes(a);
    const std::string bytesOfB = fileBytes(folder.file("B.xml"));
    EXPECT_NE(bytesOfA.find("\"test:both\""), std::string::npos);
    EXPECT_EQ(bytesOfA.find("\"test:one\""), std::string::npos);
    EXPECT_LT(bytesOfB.find("\"test:both\""), bytesOfB.find("\"test:one\""));
    test::expectWellFormedXml(a);
    test::expectWellFormedXml(folder.file("B.xml"));
}

// ---- failures of the file system -----------------------------------------------------------

TEST(WarningLogFile, AFailedWriteRaisesFileWriteSkipsTheLaterStepsAndLeavesEarlierWarningsInPlace) {
    const test::TemporaryWorkingFolder folder;
    const std::u16string path = folder.file("full.xml");
    WarningLogXML log;
    log.openLog(path);
    warnWithoutArguments(log, "test:kept");
    const std::string before = fileBytes(path);

    int signalled = 0;
    const boost::signals2::scoped_connection slot =
        builtins::connectIssuedWarningCallback([&](const Warning&) { ++signalled; });
    int callbacks = 0;
    warning::utRegisterWarningCallback(warning::utGetWarningManagerContext(), [&] { ++callbacks; });
    {
        // No byte may go past the footer's start: the disk is full where the next warning goes.
        const FileSizeLimit full(before.size() - kFooter.size());
        EXPECT_MSGID_ARGS(warnWithoutArguments(log, "test:lost"), "ORRERY:warning:LogFile:FileWrite",
                          (Arguments{path, std::u16string(u"File too large")}));
        EXPECT_EQ(fileBytes(path), before);
        log.closeLog(path);
    }
    warning::utRegisterWarningCallback(warning::utGetWarningManagerContext(), nullptr);
    EXPECT_EQ(signalled, 0);
    EXPECT_EQ(callbacks, 0);
    EXPECT_EQ(fileBytes(path), before);
    test::expectWellFormedXml(path);
}
