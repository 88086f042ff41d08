// The module loader: where the module is looked for, binding of the exported
// built-ins by name, and the start-up errors.
#include "shell/startup/module_loader.hpp"

#include "tests/support/expect_error.hpp"

#include <orrery/interp/function_table.hpp>

#include <cstdlib>
#include <string>

using namespace orrery;
using shell::startup::DiagnosticModule;
using shell::startup::locateModule;

namespace {

const std::string kBin = ORRERY_OUTPUT_DIR;

/// Sets ORRERY_MODULE_PATH for as long as it lives.
class ModulePathSetting {
public:
    explicit ModulePathSetting(const char* value) {
        if (const char* old = std::getenv("ORRERY_MODULE_PATH")) saved_ = old;
        if (value != nullptr) {
            setenv("ORRERY_MODULE_PATH", value, 1);
        } else {
            unsetenv("ORRERY_MODULE_PATH");
        }
    }
    ~ModulePathSetting() {
        if (saved_) {
            setenv("ORRERY_MODULE_PATH", saved_->c_str(), 1);
        } else {
            unsetenv("ORRERY_MODULE_PATH");
        }
    }
    ModulePathSetting(const ModulePathSetting&) = delete;
    ModulePathSetting& operator=(const ModulePathSetting&) = delete;

private:
    std::optional<std::string> saved_;
};

}  // namespace

TEST(ModuleLoader, LooksBesideTheProgramOrWhereTheEnvironmentSays) {
    {
        const ModulePathSetting unset(nullptr);
        EXPECT_EQ(locateModule().filename(), "libdiagnostic.so");
        EXPECT_EQ(locateModule().parent_path(), kBin);  // the test program lives in the output folder
    }
    {
        const ModulePathSetting folder(kBin.c_str());
        EXPECT_EQ(locateModule(), std::filesystem::path(kBin) / "libdiagnostic.so");
    }
    {
        const ModulePathSetting file("/some/where/custom.so");
        EXPECT_EQ(locateModule(), "/some/where/custom.so");
    }
}

TEST(ModuleLoader, BindsEachBuiltinToItsLanguageName) {
    const DiagnosticModule module(kBin + "/libshell_test_module_complete.so");
    static const std::pair<const char*, const char*> bindings[] = {
        {"error", "bnFullErrorFcn"},   {"assert", "bnFullAssertFcn"}, {"rethrow", "bnStructRethrowFcn"},
        {"lasterr", "bnLastErrMsg"},   {"lasterror", "bnLastErrorFcn"},
    };
    for (const auto& [name, symbol] : bindings) {
        SCOPED_TRACE(name);
        value::ValueArrayPtr out[1];
        interp::callFunction(name, 1, out, 0, nullptr);
        ASSERT_TRUE(out[0]);
        EXPECT_EQ(out[0]->textUtf8(), symbol);
    }
}

TEST(ModuleLoader, ReportsWhatIsMissing) {
    EXPECT_MSGID_TEXT(DiagnosticModule("/nowhere/libdiagnostic.so"), "ORRERY:shell:moduleNotFound",
                      "Cannot find the diagnostic module: no file /nowhere/libdiagnostic.so. Set ORRERY_MODULE_PATH "
                      "to the module or to its folder.");
    const std::string partial = kBin + "/libshell_test_module_partial.so";
    EXPECT_MSGID_TEXT(DiagnosticModule{partial}, "ORRERY:shell:missingSymbol",
                      ("The diagnostic module " + partial + " does not export bnLastErrorFcn.").c_str());
    const std::string notALibrary = std::string(ORRERY_SOURCE_DIR) + "/tests/shell/test_module/test_module.cc";
    EXPECT_MSGID(DiagnosticModule{notALibrary}, "ORRERY:shell:moduleNotLoaded");
}
