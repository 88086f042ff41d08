// Tests of warning log files: the exact bytes written, opening and closing by
// name, and failures of the file system.
#include "diagnostic/log/log_output_stream.hpp"
#include "diagnostic/log/warning_element.hpp"
#include "diagnostic/log/warning_log_reader.hpp"
#include "diagnostic/log/warning_log_xml.hpp"
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/interp/dates.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

using namespace orrery;
using lang::diagnostic::LogFileDescriptor;
using lang::diagnostic::Warning;
using lang::diagnostic::WarningLogXML;
using test::fileBytes;
using test::kFooter;
using test::kHeader;

namespace {

using Arguments = std::vector<catalogue::MessageArgument>;

std::string elementBytes(const Warning& warning) { return lang::diagnostic::renderWarningElement(warning); }

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

namespace {

/// Makes a file or folder one that this process cannot change while it lives: the
/// immutable attribute for root, whom permissions do not stop, else the given
/// permissions. made() is false where neither can be set.
class Unchangeable {
public:
    Unchangeable(std::filesystem::path path, std::filesystem::perms permissions) : path_(std::move(path)) {
        if (::geteuid() != 0) {
            previous_ = std::filesystem::status(path_).permissions();
            std::filesystem::permissions(path_, permissions);
            made_ = true;
        } else {
            made_ = setImmutable(true);
        }
    }
    ~Unchangeable() {
        if (!made_) return;
        if (::geteuid() != 0)
            std::filesystem::permissions(path_, previous_);
        else
            setImmutable(false);
    }
    Unchangeable(const Unchangeable&) = delete;
    Unchangeable& operator=(const Unchangeable&) = delete;
    bool made() const noexcept { return made_; }

private:
    bool setImmutable(bool on) {
        const LogFileDescriptor file(::open(path_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        int flags = 0;
        if (!file.isOpen() || ::ioctl(file.get(), FS_IOC_GETFLAGS, &flags) != 0) return false;
        flags = on ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
        return ::ioctl(file.get(), FS_IOC_SETFLAGS, &flags) == 0;
    }

    std::filesystem::path path_;
    std::filesystem::perms previous_{};
    bool made_ = false;
};

/// One log object, a log file where the fault strikes and a witness log opened first.
struct FaultScene {
    WarningLogXML log;
    std::u16string target;

    void warn(const std::string& identifier) { warnWithoutArguments(log, identifier); }
    void openWithOneWarning() {
        log.openLog(target);
        warn("test:kept");
    }
    /// The identifiers of the warnings in the log at path, which must be exactly a
    /// log (nothing after its footer).
    static std::vector<std::string> identifiersIn(const std::u16string& path) {
        std::vector<std::string> identifiers;
        for (const Warning& warning : lang::diagnostic::readWarningLogFile(path))
            identifiers.push_back(warning.getIdentifier());
        test::expectWellFormedXml(path);
        return identifiers;
    }
};

using Identifiers = std::vector<std::string>;
using FaultGuard = std::shared_ptr<void>;

struct FaultCase {
    const char* what;
    std::function<void(FaultScene&)> arrange;
    /// Makes the fault until the guard goes; no guard where this process cannot.
    std::function<FaultGuard(FaultScene&)> fault;
    /// Meets the fault: raises identifier (with failureText as the system's text,
    /// when given), or nothing when identifier is null.
    std::function<void(FaultScene&)> meet;
    const char* identifier;
    const char16_t* failureText;
    /// Once the fault is gone: what the log and the file are then.
    std::function<void(FaultScene&)> afterwards;
};

FaultGuard fileSizeLimit(rlim_t limit) { return std::make_shared<FileSizeLimit>(limit); }
FaultGuard unchangeable(const std::u16string& path, std::filesystem::perms permissions) {
    auto guard = std::make_shared<Unchangeable>(text::utf16ToUtf8(path), permissions);
    return guard->made() ? guard : nullptr;
}
FaultGuard noGuardNeeded(FaultScene&) { return std::make_shared<int>(); }
void openTarget(FaultScene& scene) { scene.log.openLog(scene.target); }
void writeFile(const std::u16string& path, const std::string& bytes) {
    std::ofstream(text::utf16ToUtf8(path), std::ios_base::binary) << bytes;
}
// A log of one warning in UTF-16 with its byte-order mark, and one in ISO-8859-1.
std::string utf16Log() {
    const std::u16string text =
        u"\uFEFF<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<log>\n"
        u"<warning identifier=\"a:b\" wasDisabled=\"false\" time=\"2024-03-01 10:00:00.250 +0100\">"
        u"<message>\u00e9</message><format></format></warning>\n</log>\n";
    std::string bytes;
    for (const char16_t unit : text) bytes += {static_cast<char>(unit & 0xFFU), static_cast<char>(unit >> 8U)};
    return bytes;
}
std::string latin1Log() {
    return "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<log>\n"
           "<warning identifier=\"a:b\" wasDisabled=\"false\" time=\"2024-03-01 10:00:00.250 +0100\">"
           "<message>\xE9</message><format></format></warning>\n</log>\n";
}
// Until the guard goes the file keeps what was added after its footer; then it is cut back to it.
FaultGuard cutBackAfterwards(const std::u16string& path, const std::string& footer) {
    const std::string bytes = fileBytes(path);
    const std::size_t end = bytes.find(footer) + footer.size();
    return std::shared_ptr<void>(
        nullptr, [name = text::utf16ToUtf8(path), end](void*) { std::filesystem::resize_file(name, end); });
}
// A file that is no log stays as it is, and a second open fails the same way.
std::function<void(FaultScene&)> refusedAgain(const char* identifier) {
    return [identifier](FaultScene& scene) { EXPECT_MSGID(openTarget(scene), identifier); };
}
// Refused again for appending, and loaded as it is with its warnings.
std::function<void(FaultScene&)> refusedAndLoads(std::size_t warnings) {
    return [warnings](FaultScene& scene) {
        refusedAgain("ORRERY:warning:LogFile:NotUTF8")(scene);
        EXPECT_EQ(lang::diagnostic::readWarningLogFile(scene.target).size(), warnings);
    };
}
// Neither opened nor loaded, both refused at once.
std::function<void(FaultScene&)> refusedAndNotLoaded(const char* identifier) {
    return [identifier](FaultScene& scene) {
        refusedAgain(identifier)(scene);
        EXPECT_MSGID(lang::diagnostic::readWarningLog(scene.target), identifier);
    };
}
// The log is healthy again: it holds the warning before the fault and the next one.
void keptAndNext(FaultScene& scene) {
    EXPECT_EQ(FaultScene::identifiersIn(scene.target), (Identifiers{"test:kept", "test:next"}));
}
// The log opens now and takes the warnings issued from then on after what it held.
std::function<void(FaultScene&)> opensNowAfter(Identifiers held) {
    return [held](FaultScene& scene) mutable {
        openTarget(scene);
        scene.warn("test:after");
        held.push_back("test:after");
        EXPECT_EQ(FaultScene::identifiersIn(scene.target), held);
    };
}

}  // namespace

// Every fault raises its identifier, changes no byte already in a file, and
// leaves the log object working: the next warning is issued and reaches the
// witness log, and the faulty log too once the fault is gone.
TEST(WarningLogFile, EachFaultRaisesItsIdentifierKeepsWhatIsOnDiskAndLetsTheNextWarningThrough) {
    const test::TemporaryWorkingFolder folder;
    const std::string notALog = "<?xml version=\"1.0\"?>\n<html></html>\n";
    const FaultCase cases[] = {
        {"the disk is full where the element goes", &FaultScene::openWithOneWarning,
         [](FaultScene& scene) { return fileSizeLimit(fileBytes(scene.target).size() - kFooter.size()); },
         [](FaultScene& scene) { scene.warn("test:lost"); }, "ORRERY:warning:LogFile:FileWrite", u"File too large",
         keptAndNext},
        {"the disk fills in the middle of an element", &FaultScene::openWithOneWarning,
         [](FaultScene& scene) { return fileSizeLimit(fileBytes(scene.target).size() + 100); },
         [](FaultScene& scene) {
             scene.log.warn(warning::utGetWarningManagerContext(), "test:lost", u"", 0, nullptr,
                            std::u16string(20000, u'\u00e9'), false);
         },
         "ORRERY:warning:LogFile:FileWrite", u"File too large", keptAndNext},
        {"a truncated log", [&](FaultScene& scene) { writeFile(scene.target, kHeader + "    <warning id"); },
         noGuardNeeded, openTarget, "ORRERY:warning:XMLParser:ParseError", nullptr,
         refusedAgain("ORRERY:warning:XMLParser:ParseError")},
        {"an empty file", [&](FaultScene& scene) { writeFile(scene.target, ""); }, noGuardNeeded, openTarget,
         "ORRERY:warning:XMLParser:ParseError", nullptr, refusedAgain("ORRERY:warning:XMLParser:ParseError")},
        {"a file that is no log", [&](FaultScene& scene) { writeFile(scene.target, notALog); }, noGuardNeeded,
         openTarget, "ORRERY:warning:XMLParser:UnknownElement", nullptr,
         refusedAgain("ORRERY:warning:XMLParser:UnknownElement")},
        {"a lone warning without a log around it",
         [&](FaultScene& scene) {
             writeFile(scene.target, "<warning identifier=\"\" wasDisabled=\"true\" time=\"\"/>\n");
         },
         noGuardNeeded, openTarget, "ORRERY:warning:LogFile:FileSeek", nullptr,
         refusedAgain("ORRERY:warning:LogFile:FileSeek")},
        {"a folder named like a log",
         [](FaultScene& scene) { std::filesystem::create_directory(text::utf16ToUtf8(scene.target)); }, noGuardNeeded,
         openTarget, "ORRERY:warning:LogFile:DirSpecified", nullptr,
         refusedAgain("ORRERY:warning:LogFile:DirSpecified")},
        // ---- what the name leads to: refused at once, nothing read, written or created
        {"a log in UTF-16", [&](FaultScene& scene) { writeFile(scene.target, utf16Log()); }, noGuardNeeded, openTarget,
         "ORRERY:warning:LogFile:NotUTF8", nullptr, refusedAndLoads(1)},
        {"a log declared ISO-8859-1", [&](FaultScene& scene) { writeFile(scene.target, latin1Log()); }, noGuardNeeded,
         openTarget, "ORRERY:warning:LogFile:NotUTF8", nullptr, refusedAndLoads(1)},
        {"a pipe named like a log", [](FaultScene& scene) { ::mkfifo(text::utf16ToUtf8(scene.target).c_str(), 0600); },
         noGuardNeeded, openTarget, "ORRERY:warning:LogFile:IsPipe", nullptr,
         refusedAndNotLoaded("ORRERY:warning:LogFile:IsPipe")},
        {"a link to a pipe",
         [](FaultScene& scene) {
             ::mkfifo("pipe.xml", 0600);
             std::filesystem::create_symlink("pipe.xml", text::utf16ToUtf8(scene.target));
         },
         noGuardNeeded, openTarget, "ORRERY:warning:LogFile:IsPipe", nullptr,
         refusedAndNotLoaded("ORRERY:warning:LogFile:IsPipe")},
        {"a link to a device",
         [](FaultScene& scene) { std::filesystem::create_symlink("/dev/null", text::utf16ToUtf8(scene.target)); },
         noGuardNeeded, openTarget, "ORRERY:warning:LogFile:IsDevice", nullptr,
         [](FaultScene& scene) {
             refusedAndNotLoaded("ORRERY:warning:LogFile:IsDevice")(scene);
             EXPECT_FALSE(std::filesystem::exists("/dev/null.xml"));
         }},
        {"a link to a missing file",
         [](FaultScene& scene) { std::filesystem::create_symlink("nowhere.xml", text::utf16ToUtf8(scene.target)); },
         noGuardNeeded, openTarget, "ORRERY:warning:LogFile:DanglingLink", nullptr,
         [](FaultScene& scene) {
             refusedAgain("ORRERY:warning:LogFile:DanglingLink")(scene);
             EXPECT_FALSE(std::filesystem::exists("nowhere.xml"));
         }},
        // ---- the file changes under an open log
        {"bytes after the footer that no writer left",
         [](FaultScene& scene) {
             scene.openWithOneWarning();
             std::ofstream(text::utf16ToUtf8(scene.target), std::ios_base::app) << "<!-- not ours -->";
         },
         [](FaultScene& scene) { return cutBackAfterwards(scene.target, kFooter); },
         [](FaultScene& scene) { scene.warn("test:lost"); }, "ORRERY:warning:LogFile:FooterMissing", nullptr,
         keptAndNext},
        {"a log emptied while open (rotation by copy and truncation)", &FaultScene::openWithOneWarning,
         [](FaultScene& scene) {
             std::filesystem::resize_file(text::utf16ToUtf8(scene.target), 0);
             return noGuardNeeded(scene);
         },
         [](FaultScene& scene) { scene.warn("test:after"); }, nullptr, nullptr,
         [](FaultScene& scene) {
             EXPECT_EQ(FaultScene::identifiersIn(scene.target), (Identifiers{"test:after", "test:next"}));
             EXPECT_TRUE(fileBytes(scene.target).starts_with(kHeader));
         }},
        {"a log renamed while open (rotation by renaming)", &FaultScene::openWithOneWarning,
         [](FaultScene& scene) {
             std::filesystem::rename(text::utf16ToUtf8(scene.target), "rotated.xml");
             return noGuardNeeded(scene);
         },
         [](FaultScene& scene) { scene.warn("test:after"); }, nullptr, nullptr,
         [](FaultScene& scene) {
             EXPECT_EQ(FaultScene::identifiersIn(u"rotated.xml"),
                       (Identifiers{"test:kept", "test:after", "test:next"}));
             EXPECT_FALSE(std::filesystem::exists(text::utf16ToUtf8(scene.target)));
         }},
        {"a folder that does not exist", [&](FaultScene& scene) { scene.target = folder.file("missing/target.xml"); },
         noGuardNeeded, openTarget, "ORRERY:warning:LogFile:OpenFileWrite", u"No such file or directory",
         refusedAgain("ORRERY:warning:LogFile:OpenFileWrite")},
        {"a folder that cannot be written",
         [&](FaultScene& scene) {
             std::filesystem::create_directory("locked");
             scene.target = folder.file("locked/target.xml");
         },
         [&](FaultScene&) {
             return unchangeable(folder.file("locked"),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
         },
         openTarget, "ORRERY:warning:LogFile:OpenFileWrite", nullptr, opensNowAfter({})},
        {"a log that may not be opened for update",
         [](FaultScene& scene) {
             scene.openWithOneWarning();
             scene.log.closeLog(scene.target);
         },
         [](FaultScene& scene) { return unchangeable(scene.target, std::filesystem::perms::none); }, openTarget,
         "ORRERY:warning:LogFile:OpenFileAppend", nullptr, opensNowAfter({"test:kept"})},
        // The log is the file that was opened: it goes on receiving warnings, and its
        // name, once free or taken by another file, is not written to.
        {"a log deleted while open", &FaultScene::openWithOneWarning,
         [](FaultScene& scene) {
             std::filesystem::remove(text::utf16ToUtf8(scene.target));
             return noGuardNeeded(scene);
         },
         [](FaultScene& scene) { scene.warn("test:unseen"); }, nullptr, nullptr,
         [](FaultScene& scene) {
             EXPECT_FALSE(std::filesystem::exists(text::utf16ToUtf8(scene.target)));
             scene.log.closeLog(scene.target);
             opensNowAfter({})(scene);
         }},
        {"a log replaced while open", &FaultScene::openWithOneWarning,
         [&](FaultScene& scene) {
             writeFile(u"replacement.xml", notALog);
             std::filesystem::rename("replacement.xml", text::utf16ToUtf8(scene.target));
             return noGuardNeeded(scene);
         },
         [](FaultScene& scene) { scene.warn("test:unseen"); }, nullptr, nullptr,
         [&](FaultScene& scene) { EXPECT_EQ(fileBytes(scene.target), notALog); }},
    };

    int signalled = 0;
    const boost::signals2::scoped_connection slot =
        builtins::connectIssuedWarningCallback([&](const Warning&) { ++signalled; });
    int number = 0;
    for (const FaultCase& c : cases) {
        SCOPED_TRACE(c.what);
        FaultScene scene;
        scene.target = folder.file("target" + std::to_string(++number) + ".xml");
        const std::u16string witness = folder.file("witness" + std::to_string(number) + ".xml");
        scene.log.openLog(witness);
        c.arrange(scene);
        const bool wasAFile = std::filesystem::is_regular_file(text::utf16ToUtf8(scene.target));
        const std::string before = wasAFile ? fileBytes(scene.target) : std::string();
        const int signalledBefore = signalled;
        {
            const FaultGuard guard = c.fault(scene);
            if (!guard) {
                std::cout << "not run, the process cannot make the fault: " << c.what << '\n';
                continue;
            }
            if (c.identifier == nullptr) {
                EXPECT_NO_THROW(c.meet(scene));
            } else {
                ORRERY_EXPECT_RAISED(c.meet(scene), except::IMsgIDException, c.identifier, {
                    EXPECT_EQ(failure__.identifier(), std::string(c.identifier));
                    if (c.failureText != nullptr) {
                        EXPECT_EQ(failure__.key().arguments, (Arguments{scene.target, std::u16string(c.failureText)}));
                    }
                });
                EXPECT_EQ(signalled, signalledBefore) << "the steps after a failed write ran";
                if (wasAFile) {
                    EXPECT_EQ(fileBytes(scene.target), before);
                }
            }
        }
        EXPECT_NO_THROW(scene.warn("test:next"));
        EXPECT_EQ(FaultScene::identifiersIn(witness).back(), "test:next");
        c.afterwards(scene);
    }
}
