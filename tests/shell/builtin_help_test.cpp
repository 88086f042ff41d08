// The help table against what the module and the host really supply: every
// function the loader binds, the module registers, the host registers, and
// every session command has an entry; every entry, alias and "see also" names
// something that exists. What help prints is shown by the help script test.
#include "shell/startup/builtin_help.hpp"
#include "shell/builtins/host_builtins.hpp"
#include "shell/eval/interpreter.hpp"
#include "shell/startup/module_loader.hpp"

#include <orrery/interp/function_table.hpp>
#include <orrery/ocos/namespace.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

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
        shell::registerHostBuiltins();
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

TEST_F(ModuleHelp, EveryHostFunctionAndSessionCommandHasAnEntry) {
    const std::vector<std::string_view> host = shell::hostBuiltinNames();
    ASSERT_GT(host.size(), 50U);
    for (const std::string_view name : host) EXPECT_NE(findHelp(name), nullptr) << "no help for " << name;
    for (const std::string_view name : {"help", "isscalar", "sprintf"}) EXPECT_NE(findHelp(name), nullptr) << name;
    const shell::eval::Interpreter interpreter;
    for (const std::string& name : interpreter.namesInScope())
        EXPECT_NE(findHelp(name), nullptr) << "no help for the session command " << name;
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
        const std::vector<std::string> commands = shell::eval::Interpreter().namesInScope();
        const bool sessionCommand = std::ranges::count(commands, std::string(name)) > 0;
        EXPECT_TRUE(interp::isFunction(name) || logFunction || diagnosticClass || sessionCommand);
        EXPECT_FALSE(entry.summary.empty() || entry.forms.empty() || entry.outputs.empty() || entry.example.empty() ||
                     entry.group.empty() || entry.seeAlso.empty());
        EXPECT_EQ(findHelp(name), &entry) << "a second entry of the same name";
        for (const std::string_view alias : shell::startup::namesIn(entry.aliases)) {
            EXPECT_TRUE(interp::isFunction(alias)) << "the alias " << alias << " is no function";
            EXPECT_EQ(findHelp(alias), &entry) << "the alias " << alias << " has an entry of its own";
        }
        for (const std::string_view other : shell::startup::namesIn(entry.seeAlso))
            EXPECT_NE(findHelp(other), nullptr) << "see also " << other << ", which has no entry";
    }
}
