// Tests of catalogue lookup and formatting, and that every identifier the
// sources name has a catalogue text.
#include "tests/support/expect_error.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/catalogue/message_content.hpp>
#include <orrery/text/text.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

using namespace orrery::catalogue;
using orrery::text::utf16ToUtf8;

TEST(Catalogue, FormatsNumbersWithoutGrouping) {
    const MessageArgument limit[] = {8191.0};
    const std::string text = formatMessageUtf8("ORRERY:msgInputAnalyzer:identifierTooLong", limit);
    EXPECT_NE(text.find("8191"), std::string::npos) << text;
}

TEST(Catalogue, FillsTextArgumentsInOrder) {
    const MessageArgument args[] = {std::u16string(u"ORRERY:a:b"), std::u16string(u"off")};
    const std::string text = formatMessageUtf8("ORRERY:warning:stateOfWarningIs", args);
    EXPECT_LT(text.find("ORRERY:a:b"), text.find("off")) << text;
}

TEST(Catalogue, ReportsMissingEntries) {
    EXPECT_TRUE(hasMessage("ORRERY:error:badStackLine"));
    EXPECT_FALSE(hasMessage("ORRERY:error:noSuchMnemonic"));
    EXPECT_FALSE(hasMessage("ORRERY:error"));  // a table, not a text
    EXPECT_FALSE(hasMessage("ORRERY::x"));
    EXPECT_MSGID(formatMessage("ORRERY:nowhere:atAll"), "ORRERY:catalogue:noSuchMessage");
    const MessageArgument text[] = {std::u16string(u"abc")};
    EXPECT_MSGID(formatMessage("ORRERY:msgInputAnalyzer:identifierTooLong", text), "ORRERY:catalogue:argumentMismatch");
}

TEST(Catalogue, MessageContentSplitsItsIdentifier) {
    const MessageContent content{"ORRERY:assertion:failed", {}};
    EXPECT_EQ(content.component(), "ORRERY:assertion");
    EXPECT_EQ(content.key(), "failed");
    EXPECT_EQ(utf16ToUtf8(content.text()), "Assertion failed.");
}

namespace {

// The message input analyzer raises its caller's prefix plus a mnemonic whose
// text is the "ORRERY:msgInputAnalyzer" entry of that mnemonic.
bool isAnalyzerIdentifier(const std::string& id) {
    const auto mnemonic = id.substr(id.rfind(':') + 1);
    return (id.starts_with("ORRERY:error:") || id.starts_with("ORRERY:warning:")) &&
           hasMessage("ORRERY:msgInputAnalyzer:" + mnemonic);
}

// Identifier literals in the sources; prefixes ("ORRERY:error:") and bare
// components are not identifiers.
std::set<std::string> identifierLiterals() {
    static const std::set<std::string> notIdentifiers = {"ORRERY:legacy_two_part", "ORRERY:error", "ORRERY:warning:LogFile",
                                                         "ORRERY:warning:XMLParser", "ORRERY:msgInputAnalyzer"};
    const std::regex literal("\"(ORRERY:[A-Za-z0-9_:-]+)\"");
    std::set<std::string> found;
    for (const char* folder : {"platform", "diagnostic", "shell"}) {
        const auto root = std::filesystem::path(ORRERY_SOURCE_DIR) / folder;
        if (!std::filesystem::exists(root)) continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            const auto extension = entry.path().extension();
            if (extension != ".cpp" && extension != ".hpp") continue;
            std::ifstream in(entry.path());
            std::stringstream buffer;
            buffer << in.rdbuf();
            const std::string source = buffer.str();
            for (std::sregex_iterator it(source.begin(), source.end(), literal), end; it != end; ++it) {
                const std::string id = (*it)[1];
                if (id.back() != ':' && !notIdentifiers.contains(id) && !isAnalyzerIdentifier(id)) found.insert(id);
            }
        }
    }
    return found;
}

}  // namespace

TEST(Catalogue, HasATextForEveryIdentifierInTheSources) {
    const auto identifiers = identifierLiterals();
    EXPECT_GT(identifiers.size(), 10u);
    for (const auto& id : identifiers) EXPECT_TRUE(hasMessage(id)) << "no catalogue text for " << id;
}
