// Built-ins of files: fileread, delete, exist and tempname.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"
#include "shell/builtins/host_builtins.hpp"

#include <orrery/catalogue/message_content.hpp>
#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/ocos/registry.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>
#include <orrery/warning/warning_operation.hpp>

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <fnmatch.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

namespace orrery::shell {
namespace {

VariableQuery& variableQuery() {
    static VariableQuery query;
    return query;
}

}  // namespace

VariableQuery setVariableQuery(VariableQuery query) { return std::exchange(variableQuery(), std::move(query)); }

namespace builtins {
namespace {

namespace fs = std::filesystem;

std::u16string wide(const std::string& utf8) { return text::utf8ToUtf16(utf8); }

// ---- fileread ----------------------------------------------------------------

// The whole file as a char row; the file must hold UTF-8 text.
void bnFileread(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const std::string name = textArgumentUtf8(*prhs[0], "fileread", 1);
    std::ifstream in(name, std::ios::binary);
    std::error_code ignored;
    if (!in || fs::is_directory(name, ignored)) except::throwMessage(messages::CannotRead(wide(name)));
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad()) except::throwMessage(messages::CannotRead(wide(name)));
    const std::u16string units = text::utf8ToUtf16(bytes);
    plhs[0] = makeValue(ValueArray::charArray(value::Dims{1, units.size()}, units));
}

// ---- delete ------------------------------------------------------------------

// The files a name stands for: itself, or the matches of a pattern (* and ?)
// in its last component.
std::vector<fs::path> filesNamed(const fs::path& name) {
    const std::string pattern = name.filename().string();
    if (pattern.find_first_of("*?") == std::string::npos) return {name};
    std::vector<fs::path> matches;
    const fs::path folder = name.has_parent_path() ? name.parent_path() : fs::path(".");
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(folder, ignored))
        if (!entry.is_directory(ignored) && fnmatch(pattern.c_str(), entry.path().filename().c_str(), 0) == 0)
            matches.push_back(name.has_parent_path() ? entry.path() : entry.path().filename());
    std::sort(matches.begin(), matches.end());
    return matches;
}

void deleteFiles(const std::string& name) {
    const std::vector<fs::path> files = filesNamed(name);
    std::error_code status;
    if (files.empty() || (files.size() == 1 && !fs::exists(fs::symlink_status(files[0], status)))) {
        const catalogue::MessageContent warning{std::string(messages::FileNotFound::identifierText), {wide(name)}};
        warning::issueCatalogueWarning(warning::utGetWarningManagerContext(), warning);
        return;
    }
    for (const fs::path& file : files) {
        if (fs::is_directory(file, status)) except::throwMessage(messages::DeleteFolder(wide(file.string())));
        if (!fs::remove(file, status) && status)
            except::throwMessage(messages::CannotDelete(wide(file.string()), wide(status.message())));
    }
}

void bnDelete(std::int32_t nlhs, ValueArrayPtr*, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 0, nrhs, 1, std::numeric_limits<std::int32_t>::max());
    for (std::int32_t k = 0; k < nrhs; ++k) deleteFiles(textArgumentUtf8(*prhs[k], "delete", k + 1));
}

// ---- exist -------------------------------------------------------------------

bool isVariable(std::string_view name) { return variableQuery() && variableQuery()(name); }

// The language's answers: 1 variable, 2 file, 5 built-in function, 7 folder, 8 class.
double existCode(const std::string& name, const std::string& type) {
    std::error_code ignored;
    const fs::file_status status = name.empty() ? fs::file_status() : fs::status(name, ignored);
    const bool isFile = fs::exists(status) && !fs::is_directory(status);
    const bool isFolder = fs::is_directory(status);
    if (type == "var") return isVariable(name) ? 1 : 0;
    if (type == "file") return isFile ? 2 : isFolder ? 7 : 0;
    if (type == "dir") return isFolder ? 7 : 0;
    if (type == "builtin") return interp::isFunction(name) ? 5 : 0;
    if (type == "class") return ocos::findClass(name) ? 8 : 0;
    if (!type.empty()) except::throwMessage(messages::BadOption(u"exist", wide(type)));
    if (isVariable(name)) return 1;
    if (isFile) return 2;
    if (interp::isFunction(name)) return 5;
    if (isFolder) return 7;
    return ocos::findClass(name) ? 8 : 0;
}

void bnExist(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 2);
    const std::string name = textArgumentUtf8(*prhs[0], "exist", 1);
    const std::string type = nrhs > 1 ? textArgumentUtf8(*prhs[1], "exist", 2) : std::string();
    plhs[0] = makeValue(ValueArray::scalar(existCode(name, type)));
}

// ---- tempname ----------------------------------------------------------------

// A name for a new file in the folder (default: the system's temporary folder):
// "tp" followed by a random identifier.
void bnTempname(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, 1);
    const fs::path folder = nrhs > 0 ? fs::path(textArgumentUtf8(*prhs[0], "tempname", 1)) : fs::temp_directory_path();
    std::string unique = boost::uuids::to_string(boost::uuids::random_generator()());
    std::replace(unique.begin(), unique.end(), '-', '_');
    plhs[0] = makeValue(ValueArray::charsFromUtf8((folder / ("tp" + unique)).string()));
}

constexpr BuiltinEntry table[] = {
    {"fileread", bnFileread},
    {"delete", bnDelete},
    {"exist", bnExist},
    {"tempname", bnTempname},
};

}  // namespace

std::span<const BuiltinEntry> fileBuiltins() { return table; }

}  // namespace builtins
}  // namespace orrery::shell
