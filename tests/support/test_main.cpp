// The unit tests' main: runs every test inside one virtual machine, as the
// orrery command runs a session. Tests that need a fresh one make their own.
#include <orrery/interp/virtual_machine.hpp>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const orrery::interp::VirtualMachineScope machine;
    return RUN_ALL_TESTS();
}
