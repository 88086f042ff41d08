// Tests of the UTF-16 path helpers against a temporary folder.
#include "tests/support/expect_error.hpp"

#include <orrery/files/paths.hpp>
#include <orrery/text/text.hpp>

#include <unistd.h>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using namespace orrery::files;
using namespace orrery::text;

namespace {

/// Runs an in-place helper on the UTF-8 path and gives the result in UTF-8.
std::string applied(void (*helper)(std::u16string&), const std::string& path) {
    std::u16string text = utf8ToUtf16(path);
    helper(text);
    return utf16ToUtf8(text);
}

/// A fresh folder holding the file "exists.txt", the folder "sub" and the link "link" to "sub".
class PathsTest : public testing::Test {
protected:
    void SetUp() override {
        root_ = fs::temp_directory_path() / ("orrery_paths_" + std::to_string(::getpid()));
        fs::remove_all(root_);
        fs::create_directories(root_ / "sub");
        std::ofstream(root_ / "exists.txt") << "x";
        fs::create_directory_symlink(root_ / "sub", root_ / "link");
        root_ = fs::canonical(root_);
    }
    void TearDown() override { fs::remove_all(root_); }

    std::string under(const std::string& relative) const { return root_.string() + "/" + relative; }

    fs::path root_;
};

}  // namespace

TEST_F(PathsTest, ResolvingGivesCanonicalOrAbsolutePathsAndIsDirFollowsLinks) {
    const std::pair<const char*, const char*> cases[] = {
        {"sub/../exists.txt", "exists.txt"},
        {"link/new.xml", "sub/new.xml"},
        {"missing/../log.xml", "log.xml"},
        {"missing/", "missing/"},
    };
    for (const auto& [given, expected] : cases) {
        EXPECT_EQ(applied(resolveCanonicalIfExistsElseAbsolute, under(given)), under(expected)) << given;
    }
    EXPECT_EQ(applied(resolveCanonicalIfExistsElseAbsolute, ""), "");
    // A relative path starts at the current folder.
    const fs::path before = fs::current_path();
    fs::current_path(root_ / "sub");
    EXPECT_EQ(applied(resolveCanonicalIfExistsElseAbsolute, "../missing"), under("missing"));
    fs::current_path(before);
    EXPECT_TRUE(isDir(utf8ToUtf16(under("link/"))));
    EXPECT_FALSE(isDir(utf8ToUtf16(under("exists.txt"))));
    EXPECT_FALSE(isDir(utf8ToUtf16(under("missing"))));
}

TEST(Paths, DotsAreHandledLexically) {
    struct Case {
        void (*helper)(std::u16string&);
        const char* given;
        const char* expected;
    };
    const Case cases[] = {
        // Single dots are removed, and nothing else.
        {handleSingleDots, "/a/./b", "/a/b"},
        {handleSingleDots, "./a", "a"},
        {handleSingleDots, "a/.", "a/"},
        {handleSingleDots, "./.", "."},
        {handleSingleDots, "/.hidden/../x.", "/.hidden/../x."},
        // A double dot removes the component before it.
        {handleDotDots, "/a/b/../c", "/a/c"},
        {handleDotDots, "/../a", "/a"},
        {handleDotDots, "../a", "../a"},
        {handleDotDots, "a/b/../../..", ".."},
        {handleDotDots, "/a/./b//c", "/a/b/c"},
    };
    for (const auto& c : cases) EXPECT_EQ(applied(c.helper, c.given), c.expected) << c.given;
}

TEST(Paths, ExtensionIsThatOfTheLastComponentWithoutItsDot) {
    const std::pair<const char*, const char*> cases[] = {{"x.XML", "XML"}, {"a.b/c", ""}, {".profile", ""}, {"a.", ""}};
    for (const auto& [given, expected] : cases) {
        EXPECT_EQ(utf16ToUtf8(extensionOf(utf8ToUtf16(given))), expected) << given;
    }
    EXPECT_EQ(nativeForm(u"/tmp/\u00E9t\u00E9/log.xml"), u"/tmp/\u00E9t\u00E9/log.xml");
}

TEST(Paths, InvalidUtf16IsATextError) {
    std::u16string bad = std::u16string(u"/tmp/") + char16_t(0xD800) + u".xml";
    EXPECT_MSGID(handleSingleDots(bad), "ORRERY:text:invalidUtf16");
    EXPECT_MSGID(isDir(bad), "ORRERY:text:invalidUtf16");
}
