// Tests of catalogue lookup and formatting, and that every identifier the
// sources name has a catalogue text.
#include "tests/support/expect_error.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/catalogue/message_content.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <thread>
#include <vector>

using namespace orrery::catalogue;

TEST(Catalogue, FormatsKnownEntriesAndReportsMissingOnes) {
    const MessageArgument limit[] = {8191.0};
    const std::string number = formatMessageUtf8("ORRERY:msgInputAnalyzer:identifierTooLong", limit);
    EXPECT_NE(number.find("8191"), std::string::npos) << number;
    const MessageArgument args[] = {std::u16string(u"ORRERY:a:b"), std::u16string(u"off")};
    const std::string text = formatMessageUtf8("ORRERY:warning:stateOfWarningIs", args);
    EXPECT_LT(text.find("ORRERY:a:b"), text.find("off")) << text;
    const MessageContent content{"ORRERY:assertion:failed", {}};
    EXPECT_EQ(content.component() + "|" + content.key(), "ORRERY:assertion|failed");
    EXPECT_TRUE(hasMessage("ORRERY:error:badStackLine"));
    EXPECT_FALSE(hasMessage("ORRERY:error:noSuchMnemonic"));
    EXPECT_FALSE(hasMessage("ORRERY:error"));  // a table, not a text
    EXPECT_FALSE(hasMessage("ORRERY::x"));
    EXPECT_MSGID(formatMessage("ORRERY:nowhere:atAll"), "ORRERY:catalogue:noSuchMessage");
    const MessageArgument abc[] = {std::u16string(u"abc")};
    EXPECT_MSGID(formatMessage("ORRERY:msgInputAnalyzer:identifierTooLong", abc), "ORRERY:catalogue:argumentMismatch");
    const MessageArgument twoLimits[] = {8191.0, 8191.0};
    for (std::span<const MessageArgument> wrongCount :
         {std::span<const MessageArgument>(), std::span<const MessageArgument>(twoLimits)}) {
        SCOPED_TRACE(wrongCount.size());
        EXPECT_MSGID(formatMessage("ORRERY:msgInputAnalyzer:identifierTooLong", wrongCount),
                     "ORRERY:catalogue:argumentMismatch");
    }
}

// Each entry keeps the format made from its own pattern: entries that share a last
// component stay apart, and threads that make and use the formats at once each get
// every entry's own text.
TEST(Catalogue, FormatsEachEntryWithItsOwnPatternFromSeveralThreads) {
    struct Case {
        const char* identifier;
        std::vector<MessageArgument> arguments;
        const char* text;
    };
    const Case cases[] = {
        {"ORRERY:error:nonScalarInput", {}, "The error structure must be 1-by-1."},
        {"ORRERY:msgInputAnalyzer:nonScalarInput", {}, "Logical and object arguments of a format must be scalar."},
        {"ORRERY:sprintf:badFieldSize",
         {100000.0},
         "A field width or precision must be a whole number no larger than 100000."},
        {"ORRERY:shell:assignmentCount", {3.0, 2.0}, "Cannot assign 3 values to 2 places."},
        {"ORRERY:catalogue:noSuchMessage",
         {std::u16string(u"a:b")},
         "There is no message 'a:b' in the message catalogue."},
    };
    constexpr std::size_t kThreads = 4;
    constexpr std::size_t kRounds = 50;
    std::vector<std::vector<std::string>> seen(kThreads);
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            for (std::size_t round = 0; round < kRounds; ++round) {
                const Case& c = cases[(t + round) % std::size(cases)];
                seen[t].push_back(std::string(c.identifier) + "|" + formatMessageUtf8(c.identifier, c.arguments));
            }
        });
    }
    for (auto& thread : threads) thread.join();
    for (std::size_t t = 0; t < kThreads; ++t) {
        for (std::size_t round = 0; round < kRounds; ++round) {
            const Case& c = cases[(t + round) % std::size(cases)];
            EXPECT_EQ(seen[t][round], std::string(c.identifier) + "|" + c.text) << "thread " << t;
        }
    }
}

// The message input analyzer raises its caller's prefix plus a mnemonic whose
// text is the "ORRERY:msgInputAnalyzer" entry of that mnemonic.
static bool isAnalyzerIdentifier(const std::string& id) {
    const auto mnemonic = id.substr(id.rfind(':') + 1);
    return (id.starts_with("ORRERY:error:") || id.starts_with("ORRERY:warning:")) &&
           hasMessage("ORRERY:msgInputAnalyzer:" + mnemonic);
}

// Calls f(path, text) for every C++ source file of the platform, module and shell.
template <class F>
static void forEachSource(F f) {
    for (const char* folder : {"platform", "diagnostic", "shell"}) {
        const auto root = std::filesystem::path(ORRERY_SOURCE_DIR) / folder;
        if (!std::filesystem::exists(root)) continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            const auto extension = entry.path().extension();
            if (extension != ".cpp" && extension != ".hpp") continue;
            std::ifstream in(entry.path());
            f(entry.path(), std::string{std::istreambuf_iterator<char>(in), {}});
        }
    }
}

// Identifier literals in the sources; prefixes ("ORRERY:error:") and bare
// components are not identifiers.
static std::set<std::string> identifierLiterals() {
    static const std::set<std::string> notIdentifiers = {"ORRERY:legacy_two_part", "ORRERY:error",
                                                         "ORRERY:warning:LogFile", "ORRERY:warning:XMLParser",
                                                         "ORRERY:msgInputAnalyzer"};
    const std::regex literal("\"(ORRERY:[A-Za-z0-9_:-]+)\"");
    std::set<std::string> found;
    forEachSource([&](const std::filesystem::path&, const std::string& source) {
        for (std::sregex_iterator it(source.begin(), source.end(), literal), end; it != end; ++it) {
            const std::string id = (*it)[1];
            if (id.back() != ':' && !notIdentifiers.contains(id) && !isAnalyzerIdentifier(id)) found.insert(id);
        }
    });
    return found;
}

TEST(Catalogue, HasATextForEveryIdentifierInTheSources) {
    const auto identifiers = identifierLiterals();
    EXPECT_GT(identifiers.size(), 10u);
    for (const auto& id : identifiers) EXPECT_TRUE(hasMessage(id)) << "no catalogue text for " << id;
}

// A key's declared argument count is what the compiler holds its makers to, so it
// must be the count its catalogue text takes.
TEST(Catalogue, EveryDeclaredKeyTakesTheArgumentsOfItsText) {
    const std::regex declaration(R"re(ORRERY_MESSAGE_KEY\((\w+),\s*"([^"]+)",\s*(\d+)\))re");
    std::size_t keys = 0;
    forEachSource([&](const std::filesystem::path& path, const std::string& source) {
        for (std::sregex_iterator it(source.begin(), source.end(), declaration), end; it != end; ++it, ++keys) {
            const std::string id = (*it)[2];
            EXPECT_EQ(messageArgumentCount(id), std::stoul((*it)[3])) << (*it)[1] << " (" << id << ") in " << path;
        }
    });
    EXPECT_GT(keys, 100u);
}
