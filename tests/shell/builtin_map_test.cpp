// The map of built-ins at the end of docs/ARCHITECTURE.md against the binding
// tables: the module's (the loader's names and symbols) and the host's (one table
// per file of shell/builtins), both ways, so that the map cannot drift.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/host_builtins.hpp"
#include "shell/startup/module_loader.hpp"

#include <orrery/interp/function_table.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace orrery::shell;

namespace {

using Names = std::set<std::string>;

// The lines of the map, from its heading to the next heading.
std::vector<std::string> mapLines() {
    std::ifstream in(std::filesystem::path(ORRERY_SOURCE_DIR) / "docs" / "ARCHITECTURE.md");
    std::vector<std::string> lines;
    bool inMap = false;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("## ")) inMap = line == "## Built-ins: language name to file";
        if (inMap) lines.push_back(line);
    }
    return lines;
}

// The cells of the table rows that follow the line starting with `title`, without
// the heading and the rule.
std::vector<std::vector<std::string>> tableAfter(const std::vector<std::string>& lines, std::string_view title) {
    std::vector<std::vector<std::string>> rows;
    auto line = lines.begin();
    while (line != lines.end() && !line->starts_with(title)) ++line;
    while (line != lines.end() && !line->starts_with("|")) ++line;
    for (line += line == lines.end() ? 0 : 2; line != lines.end() && line->starts_with("|"); ++line) {
        std::vector<std::string> cells;
        std::stringstream row(line->substr(1));
        for (std::string cell; std::getline(row, cell, '|');) {
            cell.erase(0, cell.find_first_not_of(' '));
            cell.erase(cell.find_last_not_of(' ') + 1);
            cells.push_back(cell);
        }
        rows.push_back(cells);
    }
    return rows;
}

Names words(const std::string& text) {
    Names names;
    std::stringstream in(text);
    for (std::string word; in >> word;) names.insert(word);
    return names;
}

Names namesOf(std::span<const builtins::BuiltinEntry> table) {
    Names names;
    for (const auto& entry : table) names.emplace(entry.name);
    return names;
}

// The host's groups by the file that holds each table.
std::map<std::string, Names> hostTables() {
    using namespace builtins;
    return {{"construction_builtins.cpp", namesOf(constructionBuiltins())},
            {"elementary_builtins.cpp", namesOf(elementaryBuiltins())},
            {"extrema_builtins.cpp", namesOf(extremaBuiltins())},
            {"file_builtins.cpp", namesOf(fileBuiltins())},
            {"folder_builtins.cpp", namesOf(folderBuiltins())},
            {"kind_builtins.cpp", namesOf(kindBuiltins())},
            {"math_builtins.cpp", namesOf(mathBuiltins())},
            {"message_builtins.cpp", namesOf(messageBuiltins())},
            {"sort_builtins.cpp", namesOf(sortBuiltins())},
            {"struct_builtins.cpp", namesOf(structBuiltins())},
            {"text_builtins.cpp", namesOf(textBuiltins())},
            {"text_conversion_builtins.cpp", namesOf(textConversionBuiltins())},
            {"text_edit_builtins.cpp", namesOf(textEditBuiltins())},
            {"time_builtins.cpp", namesOf(timeBuiltins())},
            {"value_builtins.cpp", namesOf(valueBuiltins())}};
}

}  // namespace

TEST(BuiltinMap, ListsTheModulesBindingsExactly) {
    std::map<std::string, std::string> documented;
    for (const auto& row : tableAfter(mapLines(), "Module (bound by the shell")) {
        ASSERT_EQ(row.size(), 3u);
        if (!row[1].starts_with("bn")) continue;  // registered by the module itself
        documented.emplace(row[0], row[1]);
        const std::string file = row[2].substr(0, row[2].find(' '));
        EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(ORRERY_SOURCE_DIR) / file)) << file;
    }
    std::map<std::string, std::string> bound;
    for (const auto& binding : startup::moduleBindings()) bound.emplace(binding.name, binding.symbol);
    EXPECT_EQ(documented, bound);
}

TEST(BuiltinMap, ListsEachHostTableUnderItsFile) {
    std::map<std::string, Names> documented;
    for (const auto& row : tableAfter(mapLines(), "Host (shell/builtins/")) {
        ASSERT_EQ(row.size(), 2u);
        documented.emplace(row[0], words(row[1]));
        EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(ORRERY_SOURCE_DIR) / "shell/builtins" / row[0]))
            << row[0];
    }
    EXPECT_EQ(documented, hostTables());
    // and these tables are the ones the shell registers
    Names listed;
    for (const auto& [file, names] : hostTables()) listed.insert(names.begin(), names.end());
    Names registered;
    for (const std::string_view name : hostBuiltinNames()) registered.emplace(name);
    EXPECT_EQ(listed, registered);
}

// The platform's own functions are in the function table from the start; a host
// table that named them would only be shadowed.
TEST(BuiltinMap, ListsThePlatformsOwnFunctionsAndNoHostTableRepeatsThem) {
    Names platform;
    const std::regex entry("^Platform: (.*) in platform/");
    for (const auto& line : mapLines()) {
        std::smatch found;
        if (!std::regex_search(line, found, entry)) continue;
        const std::string names = found[1];
        const std::regex quoted("`([^`]+)`");
        for (std::sregex_iterator it(names.begin(), names.end(), quoted), end; it != end; ++it)
            platform.insert((*it)[1]);
    }
    EXPECT_FALSE(platform.empty());
    for (const auto& name : platform) {
        EXPECT_TRUE(orrery::interp::isFunction(name)) << name;
        for (const auto& [file, names] : hostTables()) EXPECT_FALSE(names.contains(name)) << name << " in " << file;
    }
}
