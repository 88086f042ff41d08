// Tests of the UTF-16 path helpers against a temporary folder.
#include "tests/support/expect_error.hpp"

#include <orrery/files/paths.hpp>
#include <orrery/text/text.hpp>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace orrery::files;

namespace {

std::u16string u16(const fs::path& path) { return orrery::text::utf8ToUtf16(path.string()); }
std::u16string u16(const std::string& text) { return orrery::text::utf8ToUtf16(text); }

std::string narrow(const std::u16string& text) { return orrery::text::utf16ToUtf8(text); }

std::u16string applied(void (*helper)(std::u16string&), std::u16string path) {
    helper(path);
    return path;
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

    std::u16string resolved(const std::string& relative) const {
        return applied(resolveCanonicalIfExistsElseAbsolute, u16(root_.string() + "/" + relative));
    }
    std::u16string under(const std::string& relative) const { return u16(root_ / relative); }

    fs::path root_;
};

}  // namespace

TEST_F(PathsTest, ResolvingGivesCanonicalOrAbsolutePaths) {
    struct Case { const char* given; const char* expected; };
    const Case cases[] = {
        {"exists.txt", "exists.txt"},
        {"sub/../exists.txt", "exists.txt"},
        {"./sub/", "sub"},
        {"link", "sub"},
        {"link/new.xml", "sub/new.xml"},
        {"missing/../log.xml", "log.xml"},
        {"sub/./missing.xml", "sub/missing.xml"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.given);
        EXPECT_EQ(narrow(resolved(c.given)), narrow(under(c.expected)));
    }
    EXPECT_EQ(narrow(resolved("missing/")), narrow(under("missing/")));
    EXPECT_EQ(applied(resolveCanonicalIfExistsElseAbsolute, u""), u"");
}

TEST_F(PathsTest, ResolvingARelativePathStartsAtTheCurrentFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(root_ / "sub");
    EXPECT_EQ(narrow(applied(resolveCanonicalIfExistsElseAbsolute, u"../exists.txt")), narrow(under("exists.txt")));
    EXPECT_EQ(narrow(applied(resolveCanonicalIfExistsElseAbsolute, u"mylog")), narrow(under("sub/mylog")));
    fs::current_path(before);
}

TEST(Paths, SingleDotsAreRemovedAndNothingElse) {
    struct Case { const char16_t* given; const char16_t* expected; };
    const Case cases[] = {
        {u"/a/./b", u"/a/b"}, {u"./a", u"a"},         {u"a/.", u"a/"},          {u"a/./", u"a/"},
        {u".", u"."},         {u"./.", u"."},         {u"/a/../b", u"/a/../b"}, {u"/.hidden/x.", u"/.hidden/x."},
        {u"", u""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(narrow(c.given));
        EXPECT_EQ(narrow(applied(handleSingleDots, c.given)), narrow(c.expected));
    }
}

TEST(Paths, DotDotsRemoveTheComponentBeforeThem) {
    struct Case { const char16_t* given; const char16_t* expected; };
    const Case cases[] = {
        {u"/a/b/../c", u"/a/c"}, {u"/../a", u"/a"},      {u"../a", u"../a"},       {u"a/b/../../..", u".."},
        {u"/a/./b//c", u"/a/b/c"}, {u"/a/b/..", u"/a/"}, {u"a/..", u"."},          {u"", u""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(narrow(c.given));
        EXPECT_EQ(narrow(applied(handleDotDots, c.given)), narrow(c.expected));
    }
}

TEST_F(PathsTest, IsDirFollowsLinksAndRejectsFilesAndMissingPaths) {
    EXPECT_TRUE(isDir(under("sub")));
    EXPECT_TRUE(isDir(under("sub") + u"/"));
    EXPECT_TRUE(isDir(under("link")));
    EXPECT_FALSE(isDir(under("exists.txt")));
    EXPECT_FALSE(isDir(under("missing")));
    EXPECT_FALSE(isDir(u""));
}

TEST(Paths, ExtensionIsThatOfTheLastComponentWithoutItsDot) {
    struct Case { const char16_t* given; const char16_t* expected; };
    const Case cases[] = {
        {u"x.XML", u"XML"}, {u"/t/log.xml", u"xml"}, {u"a.b/c", u""}, {u"a.tar.gz", u"gz"},
        {u".profile", u""}, {u"a.", u""},            {u"dir/", u""},  {u"", u""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(narrow(c.given));
        EXPECT_EQ(narrow(extensionOf(c.given)), narrow(c.expected));
    }
}

TEST(Paths, NativeFormKeepsNonAsciiNames) {
    EXPECT_EQ(nativeForm(u"/tmp/\u00E9t\u00E9/log.xml"), u"/tmp/\u00E9t\u00E9/log.xml");
}

TEST(Paths, InvalidUtf16IsATextError) {
    const std::u16string bad = std::u16string(u"/tmp/") + char16_t(0xD800) + u".xml";
    const std::function<void()> calls[] = {
        [&] { std::u16string p = bad; resolveCanonicalIfExistsElseAbsolute(p); },
        [&] { std::u16string p = bad; handleSingleDots(p); },
        [&] { std::u16string p = bad; handleDotDots(p); },
        [&] { isDir(bad); },
        [&] { nativeForm(bad); },
        [&] { extensionOf(bad); },
    };
    for (const auto& call : calls) EXPECT_MSGID(call(), "ORRERY:text:invalidUtf16");
}
