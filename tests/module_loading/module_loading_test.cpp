// Loads libdiagnostic.so the way the interpreter does and checks its entry points.
#include "tests/support/expect_error.hpp"

#include <orrery/interp/function_table.hpp>
#include <orrery/lang/warning.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/ocos/registry.hpp>
#include <orrery/services/services.hpp>
#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <dlfcn.h>

#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace orrery;

namespace {

struct ModuleCloser {
    void operator()(void* handle) const { dlclose(handle); }
};

class LoadedModule : public ::testing::Test {
protected:
    void SetUp() override {
        const std::string path = std::string(ORRERY_OUTPUT_DIR) + "/libdiagnostic.so";
        handle_.reset(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL));
        ASSERT_NE(handle_, nullptr) << dlerror();
    }
    template <class F>
    F entry(const char* name) {
        auto* symbol = dlsym(handle_.get(), name);
        EXPECT_NE(symbol, nullptr) << name;
        return reinterpret_cast<F>(symbol);
    }
    std::unique_ptr<void, ModuleCloser> handle_;
};

using EntryPoint = void (*)();

}  // namespace

TEST_F(LoadedModule, InitialisingTwiceRegistersTheResetBuiltinOnce) {
    auto initialise = entry<EntryPoint>("LxInitialize_diagnostic");
    auto terminate = entry<EntryPoint>("LxTerminate_diagnostic");
    initialise();
    initialise();
    EXPECT_EQ(services::svRegistrationCount("ResetLastPrintedWarning"), 1);
    EXPECT_TRUE(interp::isFunction("ResetLastPrintedWarning"));
    terminate();
    terminate();
    EXPECT_EQ(warning::utGetWarningLogFactoryFcn(), nullptr);
    EXPECT_EQ(warning::utGetWarningLogDestroyFcn(), nullptr);
}

TEST_F(LoadedModule, ResetBuiltinClearsTheLastPrintedIdentifier) {
    entry<EntryPoint>("LxInitialize_diagnostic")();
    const auto reset = [](std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                          const value::ValueArray* const* prhs) {
        interp::callFunction("ResetLastPrintedWarning", nlhs, plhs, nrhs, prhs);
    };
    auto* context = warning::utGetWarningManagerContext();
    warning::utSetLastPrintedWarningId(context, "ORRERY:a:b");

    const auto input = value::ValueArray::scalar(1);
    const value::ValueArray* inputs[] = {&input};
    value::ValueArrayPtr outputs[1];
    EXPECT_MSGID(reset(1, outputs, 0, nullptr), "ORRERY:tooManyOutputs");
    EXPECT_MSGID(reset(0, outputs, 1, inputs), "ORRERY:tooManyInputs");
    EXPECT_MSGID(reset(0, outputs, -1, nullptr), "ORRERY:notEnoughInputs");
    EXPECT_EQ(warning::utGetLastPrintedWarningId(context), "ORRERY:a:b");

    reset(0, outputs, 0, nullptr);
    EXPECT_EQ(warning::utGetLastPrintedWarningId(context), "");
    EXPECT_EQ(outputs[0], nullptr);
    entry<EntryPoint>("LxTerminate_diagnostic")();
}

TEST_F(LoadedModule, TerminatingWithoutAContextOnlyClearsTheFunctions) {
    // A new thread has no virtual machine, and so no warning manager context.
    std::thread([this] {
        ASSERT_EQ(warning::utGetWarningManagerContext(), nullptr);
        entry<EntryPoint>("LxInitialize_diagnostic")();
        entry<EntryPoint>("LxTerminate_diagnostic")();
        EXPECT_EQ(warning::utGetWarningLogFactoryFcn(), nullptr);
        EXPECT_EQ(warning::utGetWarningLogDestroyFcn(), nullptr);
    }).join();
}

TEST_F(LoadedModule, TheWarningClassStaysUsableAcrossUnloadAndReload) {
    entry<EntryPoint>("LxInitialize_diagnostic")();
    const auto registered = ocos::findClass("orrery.internal.diagnostic.Warning");
    ASSERT_NE(registered, nullptr);
    entry<EntryPoint>("LxTerminate_diagnostic")();
    handle_.reset();
    SetUp();
    entry<EntryPoint>("LxInitialize_diagnostic")();
    EXPECT_EQ(ocos::findClass("orrery.internal.diagnostic.Warning"), registered) << "registered once per process";

    using Convert = value::ValueArrayPtr (*)(const std::vector<lang::diagnostic::Warning>&);
    const auto convert =
        entry<Convert>("_ZN6orrery4lang10diagnostic27convertWarningsToValueArrayERKSt6vectorINS1_7WarningESaIS3_EE");
    const auto objects = convert({lang::diagnostic::Warning(), lang::diagnostic::Warning()});
    const value::ValueArray* inputs[] = {objects.get(), objects.get()};
    value::ValueArrayPtr answer[1];
    ASSERT_TRUE(ocos::callMethodIfDefined("isequal", 1, answer, 2, inputs));
    EXPECT_TRUE(answer[0]->logicalAt(0));
    entry<EntryPoint>("LxTerminate_diagnostic")();
}
