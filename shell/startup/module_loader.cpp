// The module loader on dlopen and dlsym.
#include "shell/startup/module_loader.hpp"

#include "shell/startup/startup_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/text/text.hpp>
#include <orrery/value/value_array.hpp>

#include <dlfcn.h>

#include <cstdlib>
#include <system_error>

namespace orrery::shell::startup {
namespace {

constexpr std::string_view kModuleFile = "libdiagnostic.so";

// The module's built-ins, bound by the names they are exported under.
constexpr BuiltinBinding kBindings[] = {
    {"error", "bnFullErrorFcn"},      {"assert", "bnFullAssertFcn"},   {"rethrow", "bnStructRethrowFcn"},
    {"lasterr", "bnLastErrMsg"},      {"lasterror", "bnLastErrorFcn"}, {"warning", "bnFullWarningFcn"},
    {"lastwarn", "bnLastWarningMsg"},
};

using EntryPoint = void (*)();

std::u16string pathText(const std::filesystem::path& path) { return text::utf8ToUtf16(path.string()); }

}  // namespace

std::span<const BuiltinBinding> moduleBindings() { return kBindings; }

std::filesystem::path locateModule() {
    if (const char* configured = std::getenv("ORRERY_MODULE_PATH"); configured != nullptr && *configured != '\0') {
        std::filesystem::path path(configured);
        std::error_code ignored;
        return std::filesystem::is_directory(path, ignored) ? path / kModuleFile : path;
    }
    std::error_code failed;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
    if (failed) return kModuleFile;
    std::filesystem::path built = program.parent_path() / kModuleFile;
    std::filesystem::path installed = (program.parent_path() / ORRERY_INSTALLED_MODULE).lexically_normal();
    std::error_code ignored;
    if (!std::filesystem::exists(built, ignored) && std::filesystem::exists(installed, ignored)) return installed;
    return built;
}

void DiagnosticModule::Closer::operator()(void* handle) const noexcept { dlclose(handle); }

DiagnosticModule::DiagnosticModule(const std::filesystem::path& path) : path_(path) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) except::throwMessage(ModuleNotFound(pathText(path)));
    // The module's classes stay registered after unloading, so its code stays mapped.
    handle_.reset(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE));
    if (!handle_) {
        const char* reason = dlerror();
        except::throwMessage(ModuleNotLoaded(pathText(path), text::utf8ToUtf16(reason != nullptr ? reason : "")));
    }
    const auto initialize = reinterpret_cast<EntryPoint>(symbol("LxInitialize_diagnostic"));
    const auto terminate = reinterpret_cast<EntryPoint>(symbol("LxTerminate_diagnostic"));
    std::vector<std::pair<std::string_view, value::BuiltinFunction>> builtins;
    for (const auto& binding : kBindings)
        builtins.emplace_back(binding.name, reinterpret_cast<value::BuiltinFunction>(symbol(binding.symbol)));
    initialize();
    terminate_ = terminate;
    for (const auto& [name, function] : builtins) interp::registerFunction(name, function);
}

DiagnosticModule::~DiagnosticModule() {
    if (terminate_ != nullptr) terminate_();
}

void* DiagnosticModule::symbol(const char* name) const {
    void* found = dlsym(handle_.get(), name);
    if (found == nullptr) except::throwMessage(MissingSymbol(pathText(path_), text::utf8ToUtf16(name)));
    return found;
}

}  // namespace orrery::shell::startup
