// Tests of the module's entry points and the warning log they attach.
#include "diagnostic/module/entry_points.hpp"
#include "diagnostic/log/warning_log_xml.hpp"

#include <orrery/interp/virtual_machine.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <gtest/gtest.h>

#include <thread>

using namespace orrery;
using lang::diagnostic::WarningLogXML;

namespace {

// Counts the logs it destroys, passing them on to the destroy function it wraps.
warning::utWarningLogDestroyFcn wrappedDestroy = nullptr;
int destroyedLogs = 0;

void countingDestroy(warning::utWarningLog* log) {
    ++destroyedLogs;
    wrappedDestroy(log);
}

}  // namespace

TEST(ModuleEntryPoints, InitialisingAttachesAWarningLogAndTerminatingDestroysIt) {
    interp::VirtualMachineScope machine;
    auto* context = machine.machine().warningManagerContext();
    LxInitialize_diagnostic();
    EXPECT_NE(dynamic_cast<WarningLogXML*>(warning::utGetWarningLog(context)), nullptr);
    const auto factory = warning::utGetWarningLogFactoryFcn();
    ASSERT_NE(factory, nullptr);
    ASSERT_NE(warning::utGetWarningLogDestroyFcn(), nullptr);

    // Put in a log made by the installed factory and owned through a counting
    // destroy function; the attached one goes through the module's own.
    wrappedDestroy = warning::utGetWarningLogDestroyFcn();
    destroyedLogs = 0;
    warning::utSetWarningLogDestroyFcn(&countingDestroy);
    warning::utSetWarningLog(context, factory());
    EXPECT_EQ(destroyedLogs, 0);

    LxTerminate_diagnostic();
    EXPECT_EQ(destroyedLogs, 1);
    EXPECT_EQ(warning::utGetWarningLog(context), nullptr);
    EXPECT_EQ(warning::utGetWarningLogFactoryFcn(), nullptr);
    EXPECT_EQ(warning::utGetWarningLogDestroyFcn(), nullptr);
}

TEST(ModuleEntryPoints, InitialisingWithoutAContextOnlyInstallsTheFunctions) {
    std::thread([] {
        ASSERT_EQ(warning::utGetWarningManagerContext(), nullptr);
        LxInitialize_diagnostic();
        EXPECT_NE(warning::utGetWarningLogFactoryFcn(), nullptr);
        EXPECT_NE(warning::utGetWarningLogDestroyFcn(), nullptr);
        LxTerminate_diagnostic();
    }).join();
}
