// Tests of the one form of a warning log file name, in a temporary working folder.
#include "diagnostic/log/log_file_name.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

#include <orrery/except/msg_id_exception.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

using orrery::lang::diagnostic::normaliseLogFileName;

TEST(LogFileName, IsAbsoluteResolvedAndEndsInXmlOrIsRefusedBeforeAnyFileIsTouched) {
    const orrery::test::TemporaryWorkingFolder folder;
    std::filesystem::create_directory("folder");
    std::filesystem::create_directory("folder.xml");
    // The extension is the given name's: a link without one names a log beside it, never beside its target.
    std::filesystem::create_symlink("/dev/null", "null");
    std::filesystem::create_symlink("/dev/null", "device.xml");
    const std::u16string log = folder.file("log.xml");
    struct Case {
        std::u16string name;
        std::string identifier;  // empty when the name is accepted
        std::u16string result;   // the normalised name, or the error's argument
    };
    const Case cases[] = {
        {u"log", "", log},
        {u"sub/../log", "", log},
        {folder.file("log"), "", log},
        {u"Log.XML", "", folder.file("Log.XML")},
        {u"folder.xml", "", folder.file("folder.xml")},
        {u"a.b/log", "", folder.file("a.b/log.xml")},
        {u"null", "", folder.file("null.xml")},
        {u"device.xml", "", u"/dev/null"},
        {u"", "ORRERY:warning:LogFile:EmptyName", u""},
        {u"log.txt", "ORRERY:warning:LogFile:BadExtension", folder.file("log.txt")},
        {u"log.xml.bak", "ORRERY:warning:LogFile:BadExtension", folder.file("log.xml.bak")},
        {u"folder", "ORRERY:warning:LogFile:DirSpecified", folder.file("folder")},
        {u"./folder/.", "ORRERY:warning:LogFile:DirSpecified", folder.file("folder")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(orrery::text::utf16ToUtf8(c.name));
        try {
            EXPECT_EQ(normaliseLogFileName(c.name), c.result);
            EXPECT_EQ(c.identifier, "");
        } catch (const orrery::except::IMsgIDException& failure) {
            EXPECT_EQ(failure.identifier(), c.identifier);
            const auto& arguments = failure.key().arguments;
            EXPECT_EQ(arguments.empty() ? u"" : std::get<std::u16string>(arguments[0]), c.result);
        }
    }
    EXPECT_FALSE(std::filesystem::exists("log.xml"));
    EXPECT_FALSE(std::filesystem::exists("sub"));
}
