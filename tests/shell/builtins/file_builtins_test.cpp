// Tests of the file and folder built-ins, in a scratch folder of their own.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/console/console_capture.hpp>

#include <filesystem>
#include <fstream>

using namespace builtin_test;
namespace fs = std::filesystem;

namespace {

class FileBuiltins : public ::testing::Test {
protected:
    void SetUp() override {
        const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
        root_ = fs::temp_directory_path() / (std::string("orrery_builtins_") + test->name());
        fs::remove_all(root_);
        fs::create_directories(root_);
    }
    void TearDown() override { fs::remove_all(root_); }

    ValueArray path(const std::string& name) const { return ValueArray::charsFromUtf8((root_ / name).string()); }
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(root_ / name, std::ios::binary) << bytes;
    }
    double exist(const ValueArray& name, const char* type = nullptr) const {
        return type ? call1("exist", {name, ValueArray::charsFromUtf8(type)}).realAt(0)
                    : call1("exist", {name}).realAt(0);
    }

    fs::path root_;
    orrery::console::ConsoleCapture console_;
};

}  // namespace

TEST_F(FileBuiltins, ExistTellsFilesFoldersFunctionsAndVariablesApart) {
    write("a.txt", "x");
    // A name, the type asked for (null: any) and the answer.
    const std::tuple<ValueArray, const char*, double> cases[] = {
        {path("a.txt"), nullptr, 2}, {path("a.txt"), "file", 2},    {path("a.txt"), "dir", 0},
        {path(""), nullptr, 7},      {path(""), "file", 7},         {path("none"), nullptr, 0},
        {txt(u"zeros"), nullptr, 5}, {txt(u"zeros"), "builtin", 5}, {txt(u"zeros"), "var", 0},
    };
    for (const auto& [name, type, code] : cases) {
        SCOPED_TRACE(name.textUtf8() + " " + (type ? type : ""));
        EXPECT_EQ(exist(name, type), code);
    }
    const auto previous = orrery::shell::setVariableQuery([](std::string_view name) { return name == "zeros"; });
    EXPECT_EQ(exist(txt(u"zeros")), 1) << "a variable hides the function";
    orrery::shell::setVariableQuery(previous);
    EXPECT_MSGID(exist(txt(u"zeros"), "bogus"), "ORRERY:host:badOption");
}

TEST_F(FileBuiltins, FilereadGivesTheTextOfAFile) {
    write("t.txt", "line\n\xc3\xa9");
    EXPECT_EQ(call1("fileread", {path("t.txt")}).chars(), u"line\n\u00e9");
    EXPECT_MSGID(call1("fileread", {path("none.txt")}), "ORRERY:host:file:cannotRead");
    EXPECT_MSGID(call1("fileread", {path("")}), "ORRERY:host:file:cannotRead");
    write("bad.txt", "\xff");
    EXPECT_MSGID(call1("fileread", {path("bad.txt")}), "ORRERY:text:invalidUtf8");
}

TEST_F(FileBuiltins, DeleteRemovesMatchingFilesAndWarnsOfMissingOnes) {
    for (const char* name : {"a.tmp", "b.tmp", "c.txt"}) write(name, "");
    call("delete", 0, {path("*.tmp")});
    EXPECT_FALSE(fs::exists(root_ / "a.tmp"));
    EXPECT_FALSE(fs::exists(root_ / "b.tmp"));
    EXPECT_TRUE(fs::exists(root_ / "c.txt"));
    call("delete", 0, {path("gone.txt")});
    EXPECT_NE(console_.error().find("gone.txt' was not found."), std::string::npos) << console_.error();
    EXPECT_MSGID(call("delete", 0, {path("")}), "ORRERY:host:file:isFolder");
}

TEST_F(FileBuiltins, MkdirMakesParentsAndReportsAnExistingFolder) {
    const ValueArray deep = path("one/two");
    call("mkdir", 0, {path("one"), txt(u"two")});
    EXPECT_TRUE(fs::is_directory(root_ / "one" / "two"));
    const auto again = call("mkdir", 3, {deep});
    EXPECT_TRUE(truth(again[0]));
    EXPECT_EQ(again[2].textUtf8(), "ORRERY:host:file:folderExists");
    EXPECT_TRUE(console_.error().empty());
    call("mkdir", 0, {deep});
    EXPECT_NE(console_.error().find("already exists"), std::string::npos);

    write("file", "");
    const auto failed = call("mkdir", 2, {path("file/sub")});
    EXPECT_FALSE(truth(failed[0]));
    EXPECT_MSGID(call("mkdir", 0, {path("file/sub")}), "ORRERY:host:file:cannotCreateFolder");
}

TEST_F(FileBuiltins, CdChangesFolderAndGivesThePreviousOne) {
    const ValueArray start = call1("pwd");
    const ValueArray previous = call1("cd", {path("")});
    EXPECT_EQ(previous.chars(), start.chars());
    EXPECT_EQ(fs::path(call1("pwd").textUtf8()), fs::canonical(root_));
    call1("cd", {previous});
    EXPECT_EQ(call1("pwd").chars(), start.chars());
    EXPECT_MSGID(call1("cd", {path("none")}), "ORRERY:host:file:noSuchFolder");
}

TEST_F(FileBuiltins, TempnameGivesFreshNamesInTheFolder) {
    const std::string first = call1("tempname").textUtf8();
    EXPECT_EQ(fs::path(first).parent_path(), (fs::temp_directory_path() / "x").parent_path());
    EXPECT_EQ(fs::path(first).filename().string().rfind("tp", 0), 0u);
    EXPECT_NE(call1("tempname").textUtf8(), first);
    EXPECT_EQ(fs::path(call1("tempname", {path("")}).textUtf8()).parent_path(), root_);
}
