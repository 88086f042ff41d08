// Tests of the virtual machine: the current machine per thread, the state each
// machine keeps apart, and the services without a machine.
#include <orrery/except/qexception.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/warning/warning_manager.hpp>
#include <orrery/warning/warning_operation.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <thread>

using namespace orrery;
using interp::VirtualMachine;
using interp::VirtualMachineScope;
using LastError = except::QException::LastError;

namespace {

// Runs body on a new thread, where no machine is current.
template <class Body>
void withoutMachine(Body body) {
    std::thread([&] {
        ASSERT_EQ(interp::currentLocalVirtualMachine(), nullptr);
        body();
    }).join();
}

}  // namespace

TEST(VirtualMachine, ScopesNestAndRestoreThePreviousMachine) {
    VirtualMachine* const run = interp::currentLocalVirtualMachine();
    ASSERT_NE(run, nullptr) << "the tests run inside a machine";
    {
        VirtualMachineScope outer;
        {
            VirtualMachineScope inner;
            EXPECT_EQ(interp::currentLocalVirtualMachine(), &inner.machine());
            EXPECT_NE(inner.machine().eventPublisher(), outer.machine().eventPublisher());
        }
        EXPECT_EQ(interp::currentLocalVirtualMachine(), &outer.machine());
        VirtualMachine* seenElsewhere = &outer.machine();
        std::thread([&] { seenElsewhere = interp::currentLocalVirtualMachine(); }).join();
        EXPECT_EQ(seenElsewhere, nullptr) << "the current machine is per thread";
    }
    EXPECT_EQ(interp::currentLocalVirtualMachine(), run);
}

TEST(VirtualMachine, EachMachineKeepsItsOwnInterpreterState) {
    const VirtualMachineScope outer;
    warning::WarningManagerContext* const outerContext = warning::utGetWarningManagerContext();
    ASSERT_NE(outerContext, nullptr);
    warning::utSetWarningStatus(outerContext, "a:b", warning::WarningState::Off);
    LastError::Set("outer:id", u"outer", std::nullopt);
    const interp::FrameGuard frame({u"outer.orr", u"outer", 3});
    {
        const VirtualMachineScope inner;
        warning::WarningManagerContext* const innerContext = warning::utGetWarningManagerContext();
        EXPECT_NE(innerContext, outerContext);
        EXPECT_EQ(warning::utGetWarningStatus(innerContext, "a:b"), warning::WarningState::On);
        EXPECT_EQ(LastError::Get().identifier, "");
        EXPECT_TRUE(interp::currentFrames().empty());
        LastError::Set("inner:id", u"inner", std::nullopt);
        const interp::FrameGuard innerFrame({u"inner.orr", u"inner", 1});
        interp::setCurrentLine(8);
        EXPECT_EQ(interp::currentStack(0).dims(), (value::Dims{1, 1}));
    }
    EXPECT_EQ(warning::utGetWarningManagerContext(), outerContext);
    EXPECT_EQ(warning::utGetWarningStatus(outerContext, "a:b"), warning::WarningState::Off);
    EXPECT_EQ(LastError::Get().identifier, "outer:id");
    ASSERT_EQ(interp::currentFrames().size(), 1u);
    EXPECT_EQ(interp::currentFrames()[0].line, 3u) << "the inner machine's line went to its own frame";
}

TEST(VirtualMachine, WithoutAMachineTheServicesKeepNothing) {
    withoutMachine([] {
        EXPECT_EQ(warning::utGetWarningManagerContext(), nullptr);
        LastError::Set("a:b", u"kept nowhere", std::nullopt);
        EXPECT_EQ(LastError::Get().identifier, "");
        EXPECT_EQ(LastError::Get().message, u"");
        const interp::FrameGuard frame({u"f.orr", u"f", 1});
        interp::setCurrentLine(4);
        EXPECT_TRUE(interp::currentFrames().empty());
        EXPECT_EQ(interp::currentStack(0).dims(), (value::Dims{0, 1}));
        const warning::WarningFilter filter([](std::u16string&) { return false; });
    });
}

TEST(VirtualMachine, GuardsLeaveTheMachineTheyWereMadeInCorrectly) {
    // A frame pops from the stack it was pushed on, whichever machine is current.
    const VirtualMachineScope first;
    std::optional<interp::FrameGuard> frame(std::in_place, interp::StackEntry{u"a.orr", u"a", 1});
    {
        const VirtualMachineScope second;
        const interp::FrameGuard own({u"b.orr", u"b", 2});
        frame.reset();
        ASSERT_EQ(interp::currentFrames().size(), 1u);
        EXPECT_EQ(interp::currentFrames()[0].name, u"b");
    }
    EXPECT_TRUE(interp::currentFrames().empty());

    // A filter may outlive the machine it was registered with.
    std::optional<warning::WarningFilter> filter;
    {
        const VirtualMachineScope shortLived;
        filter.emplace([](std::u16string&) { return true; });
    }
    filter.reset();
}
