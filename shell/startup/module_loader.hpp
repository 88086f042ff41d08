// Loading the diagnostic module: find it, open it, initialise it and bind its
// exported built-ins to their language names.
#pragma once

#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

namespace orrery::shell::startup {

/// One language name and the symbol the module exports for it.
struct BuiltinBinding {
    std::string_view name;
    const char* symbol;
};

/// The module's built-ins the loader binds, each language name with its symbol.
std::span<const BuiltinBinding> moduleBindings();

/// Where the module is: $ORRERY_MODULE_PATH (the file, or a folder holding
/// libdiagnostic.so) when set, else libdiagnostic.so beside the running program
/// (as built), else the module's installed place relative to the program
/// (ORRERY_INSTALLED_MODULE); when neither exists, the one beside the program.
std::filesystem::path locateModule();

/// The diagnostic module, open and initialised for as long as the object lives.
class DiagnosticModule {
public:
    /// Opens the module at the path, runs LxInitialize_diagnostic and registers
    /// each bound built-in in the function table. Raises
    /// "ORRERY:shell:moduleNotFound" for a missing file,
    /// "ORRERY:shell:moduleNotLoaded" when it cannot be opened and
    /// "ORRERY:shell:missingSymbol" naming an entry point or built-in it lacks.
    explicit DiagnosticModule(const std::filesystem::path& path);
    /// Runs LxTerminate_diagnostic, then closes the module.
    ~DiagnosticModule();
    DiagnosticModule(const DiagnosticModule&) = delete;
    DiagnosticModule& operator=(const DiagnosticModule&) = delete;

    const std::filesystem::path& path() const noexcept { return path_; }

private:
    struct Closer {
        void operator()(void* handle) const noexcept;
    };
    void* symbol(const char* name) const;

    std::filesystem::path path_;
    std::unique_ptr<void, Closer> handle_;
    void (*terminate_)() = nullptr;
};

}  // namespace orrery::shell::startup
