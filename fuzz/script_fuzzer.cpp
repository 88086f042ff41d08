// Fuzzes whole scripts: each input is parsed and run by the shell's interpreter
// with the module loaded, in a fresh interpreter, inside a folder of its own.
// A run is bounded in statements and time and its arrays in size, so an endless
// loop or a huge array ends in a catalogued error. A user error is an answer;
// an internal fault (or a crash, a leak, a hang) is a finding. `exit` and `quit`
// end the script, not the fuzzer.
//
// Built-ins that take a path (cd, mkdir, delete, fileread and the log's open,
// close and load) refuse absolute paths and "..", so that a script can touch
// nothing outside its folder.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/host_builtins.hpp"
#include "shell/eval/exit_request.hpp"
#include "shell/eval/interpreter.hpp"
#include "shell/eval/interrupt.hpp"
#include "shell/startup/module_loader.hpp"
#include "shell/startup/session.hpp"
#include "shell/values/elements.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/namespace.hpp>
#include <orrery/ocos/registry.hpp>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace {

using namespace orrery;
namespace fs = std::filesystem;

// Bounds of one run: statements and loop iterations, time, elements per array.
constexpr std::uint64_t kMaxSteps = 20000;
constexpr std::chrono::milliseconds kMaxTime{2000};
constexpr std::size_t kMaxElementsPerArray = std::size_t{1} << 16;

// ---- keeping scripts in their folder ----------------------------------------------

// Refuses a text input that names a path outside the current folder.
void refuseOutsidePaths(std::int32_t nrhs, const value::ValueArray* const* prhs) {
    for (std::int32_t k = 0; k < nrhs; ++k) {
        if (prhs[k] == nullptr || !prhs[k]->isTextScalarTolerant()) continue;
        const std::string path = prhs[k]->textUtf8();
        if (path.starts_with('/') || path.starts_with('~') || path.find("..") != std::string::npos)
            except::throwMessage(except::host::InvalidInput());
    }
}

void guardHostBuiltins() {
    constexpr std::string_view guarded[] = {"cd", "mkdir", "delete", "fileread"};
    for (const auto& group : {shell::builtins::fileBuiltins(), shell::builtins::folderBuiltins()}) {
        for (const auto& entry : group) {
            if (std::find(std::begin(guarded), std::end(guarded), entry.name) == std::end(guarded)) continue;
            interp::registerFunction(
                entry.name, [function = entry.function](std::int32_t nlhs, value::ValueArrayPtr* plhs,
                                                        std::int32_t nrhs, const value::ValueArray* const* prhs) {
                    refuseOutsidePaths(nrhs, prhs);
                    function(nlhs, plhs, nrhs, prhs);
                });
        }
    }
}

// A namespace function that checks its paths and then runs the one it replaces.
class GuardedFunction : public ocos::COSMethodInfo {
public:
    explicit GuardedFunction(std::shared_ptr<const ocos::COSMethodInfo> inner)
        : COSMethodInfo(inner->getName(), inner->getSignature()), inner_(std::move(inner)) {}

    void invoke(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                const value::ValueArray* const* prhs) const override {
        refuseOutsidePaths(nrhs, prhs);
        inner_->invoke(nlhs, plhs, nrhs, prhs);
    }

private:
    std::shared_ptr<const ocos::COSMethodInfo> inner_;
};

// The module registers its log functions once per process, at its first load.
void guardLogFunctions() {
    ocos::COSNamespace* log = ocos::findNamespace("orrery.internal.diagnostic.log");
    if (log == nullptr) std::abort();
    for (const std::string& name : log->getFunctionNames())
        log->addFunction(std::make_shared<GuardedFunction>(log->findFunction(name)));
}

// ---- the folder of the runs -----------------------------------------------------------

// A folder of this process's own in which every script runs, emptied after each
// and removed at exit. Runs change into it and back, so that the fuzzer's own
// relative paths (corpus, findings) keep their meaning.
class RunFolder {
public:
    RunFolder() : home_(fs::current_path()) {
        std::string pattern = (fs::temp_directory_path() / "orrery-fuzz-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) std::abort();
        path_ = pattern;
    }
    ~RunFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    RunFolder(const RunFolder&) = delete;
    RunFolder& operator=(const RunFolder&) = delete;

    void enter() const { fs::current_path(path_); }

    /// Back to where the process was, with the folder emptied.
    void leave() const {
        fs::current_path(home_);
        for (const auto& entry : fs::directory_iterator(path_)) fs::remove_all(entry.path());
    }

private:
    fs::path home_;
    fs::path path_;
};

const RunFolder& runFolder() {
    static const RunFolder folder;
    return folder;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    runFolder();
    shell::values::setElementLimit(kMaxElementsPerArray);
    shell::registerHostBuiltins();
    guardHostBuiltins();
    {
        const interp::VirtualMachineScope machine;
        const shell::startup::DiagnosticModule module(shell::startup::locateModule());
        guardLogFunctions();
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view source(reinterpret_cast<const char*>(data), size);
    auto outcome = shell::startup::RunOutcome::Completed;
    std::string report;
    runFolder().enter();
    {
        const interp::VirtualMachineScope machine;
        const console::ConsoleCapture console;
        const shell::startup::DiagnosticModule module(shell::startup::locateModule());
        shell::eval::Interpreter interpreter;
        shell::setVariableQuery([&interpreter](std::string_view name) { return interpreter.isVariable(name); });
        shell::eval::limitRun(kMaxSteps, kMaxTime);
        try {
            outcome = shell::startup::runSource(interpreter, source, u"fuzz.orr", u"fuzz");
        } catch (const shell::eval::ExitRequest&) {
            // exit and quit end the script
        }
        shell::eval::limitRun(0, {});
        shell::setVariableQuery({});
        report = console.error();
    }
    runFolder().leave();
    if (outcome == shell::startup::RunOutcome::InternalFault) {
        std::cerr << "FINDING: the script ended in an internal fault:\n" << report << std::endl;
        std::abort();
    }
    return 0;
}
