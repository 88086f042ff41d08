// Built-ins of folders: pwd, cd and mkdir.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/catalogue/message_content.hpp>
#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>
#include <orrery/warning/warning_operation.hpp>

#include <filesystem>

namespace orrery::shell::builtins {
namespace {

namespace fs = std::filesystem;

std::u16string wide(const std::string& utf8) { return text::utf8ToUtf16(utf8); }

ValueArray currentFolder() { return ValueArray::charsFromUtf8(fs::current_path().string()); }

void bnPwd(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const*) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, 0);
    plhs[0] = makeValue(currentFolder());
}

// cd shows the current folder; cd(folder) changes to it and gives the previous one.
void bnCd(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, 1);
    ValueArray previous = currentFolder();
    if (nrhs == 1) {
        const std::string folder = textArgumentUtf8(*prhs[0], "cd", 1);
        std::error_code status;
        if (folder.empty() || !fs::is_directory(folder, status))
            except::throwMessage(messages::NoSuchFolder(wide(folder)));
        fs::current_path(folder, status);
        if (status) except::throwMessage(messages::NoSuchFolder(wide(folder)));
    }
    if (nrhs == 0 || nlhs > 0) plhs[0] = makeValue(std::move(previous));
}

// [status, message, identifier] of mkdir; message and identifier are empty on success.
void reportMkdir(std::int32_t nlhs, ValueArrayPtr* plhs, bool made, const catalogue::MessageContent* note) {
    plhs[0] = makeValue(ValueArray::logicalScalar(made));
    if (nlhs > 1) plhs[1] = makeValue(note ? ValueArray::chars(note->text()) : ValueArray::chars(u""));
    if (nlhs > 2) plhs[2] = makeValue(ValueArray::charsFromUtf8(note ? note->identifier : ""));
}

// mkdir(folder) or mkdir(parent, folder), making missing parents too. A folder
// that exists already counts as made, with a warning when no output is asked for;
// a failure raises unless outputs receive it.
void bnMkdir(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 3, nrhs, 1, 2);
    fs::path folder = textArgumentUtf8(*prhs[0], "mkdir", 1);
    if (nrhs == 2) folder /= textArgumentUtf8(*prhs[1], "mkdir", 2);
    const std::string name = folder.string();
    std::error_code status;
    if (fs::is_directory(folder, status)) {
        const catalogue::MessageContent exists{std::string(messages::FolderExists::identifierText), {wide(name)}};
        if (nlhs == 0)
            warning::issueCatalogueWarning(warning::utGetWarningManagerContext(), exists);
        else
            reportMkdir(nlhs, plhs, true, &exists);
        return;
    }
    fs::create_directories(folder, status);
    if (!status) {
        if (nlhs > 0) reportMkdir(nlhs, plhs, true, nullptr);
        return;
    }
    const messages::CannotCreateFolder failure(wide(name), wide(status.message()));
    if (nlhs == 0) except::throwMessage(failure);
    const catalogue::MessageContent note{failure.identifier(), failure.arguments};
    reportMkdir(nlhs, plhs, false, &note);
}

constexpr BuiltinEntry table[] = {{"pwd", bnPwd}, {"cd", bnCd}, {"mkdir", bnMkdir}};

}  // namespace

std::span<const BuiltinEntry> folderBuiltins() { return table; }

}  // namespace orrery::shell::builtins
