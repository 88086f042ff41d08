// The help table against what the module really supplies: every function the
// loader binds or the module registers has an entry, and every entry names
// something that exists. What help prints is shown by the help script test.
#include "shell/startup/builtin_help.hpp"
#include "shell/startup/module_loader.hpp"

#include <orrery/interp/function_table.hpp>
#include <orrery/ocos/namespace.hpp>

#include <gtest/gtest.h>

#include <string>

using namespace orrery;
using shell::startup::findHelp;

namespace {

constexpr std::string_view kLogNamespace = "orrery.internal.diagnostic.log";
constexpr std::string_view kClassPrefix = "orrery.internal.diagnostic.";

ocos::COSNamespace* diagnosticNamespace(std::string_view inner = {}) {
    ocos::COSNamespace* found = &ocos::rootNamespace();
    for (const std::string_view name : {"orrery", "internal", "diagnostic"})
        if (found != nullptr) found = found->getInnerNamespace(name, false);
    if (found != nullptr && !inner.empty()) found = found->getInnerNamespace(inner, false);
    return found;
}

class ModuleHelp : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        module_ = new shell::startup::DiagnosticModule(std::string(ORRERY_OUTPUT_DIR) + "/libdiagnostic.so");
        shell::startup::registerHelp();
    }
    static void TearDownTestSuite() {
        delete module_;
        module_ = nullptr;
    }
    static shell::startup::DiagnosticModule* module_;
};

shell::startup::DiagnosticModule* ModuleHelp::module_ = nullptr;

}  // namespace

TEST_F(ModuleHelp, EveryBoundAndRegisteredFunctionHasAnEntry) {
    for (const auto& binding : shell::startup::moduleBindings())
        EXPECT_NE(findHelp(binding.name), nullptr) << "no help for the bound built-in " << binding.name;
    EXPECT_NE(findHelp("ResetLastPrintedWarning"), nullptr);
    const ocos::COSNamespace* log = diagnosticNamespace("log");
    ASSERT_NE(log, nullptr);
    ASSERT_FALSE(log->getFunctionNames().empty());
    for (const auto& function : log->getFunctionNames()) {
        const std::string name = std::string(kLogNamespace) + "." + function;
        EXPECT_NE(findHelp(name), nullptr) << "no help for " << name;
    }
}

TEST_F(ModuleHelp, EveryEntryNamesSomethingThatExistsAndIsComplete) {
    const ocos::COSNamespace* diagnostic = diagnosticNamespace();
    const ocos::COSNamespace* log = diagnosticNamespace("log");
    ASSERT_NE(log, nullptr);
    for (const auto& entry : shell::startup::helpEntries()) {
        SCOPED_TRACE(std::string(entry.name));
        const std::string_view name = entry.name;
        const bool logFunction = name.starts_with(kLogNamespace) && name.size() > kLogNamespace.size() &&
                                 log->findFunction(name.substr(kLogNamespace.size() + 1)) != nullptr;
        const bool diagnosticClass =
            name.starts_with(kClassPrefix) && diagnostic->findClass(name.substr(kClassPrefix.size())) != nullptr;
        EXPECT_TRUE(interp::isFunction(name) || logFunction || diagnosticClass);
        EXPECT_FALSE(entry.summary.empty() || entry.forms.empty() || entry.outputs.empty() || entry.example.empty());
        EXPECT_EQ(findHelp(name), &entry) << "a second entry of the same name";
    }
}
