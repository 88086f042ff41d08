// Tests of the console: the standard console, writes to the current machine's
// sink, captures, and utPrintf.
#include <orrery/console/console_capture.hpp>
#include <orrery/console/console_sink.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <gtest/gtest.h>

#include <string>
#include <thread>

using namespace orrery;
using console::ConsoleCapture;
using console::ConsoleStream;
using console::consoleWrite;

TEST(ConsoleCapture, SeparatesTheStreamsAndGivesBackTheSinkItReplaced) {
    ConsoleCapture outer;
    consoleWrite(ConsoleStream::Output, "a");
    consoleWrite(ConsoleStream::Error, "b");
    {
        const ConsoleCapture inner;
        consoleWrite(ConsoleStream::Output, "c");
        EXPECT_EQ(inner.output(), "c");
    }
    consoleWrite(ConsoleStream::Output, "d");
    EXPECT_EQ(outer.output(), "ad");
    EXPECT_EQ(outer.error(), "b");
    outer.clear();
    consoleWrite(ConsoleStream::Error, "e");
    EXPECT_EQ(outer.output(), "");
    EXPECT_EQ(outer.error(), "e");
}

TEST(ConsoleCapture, CapturesOnlyItsOwnMachine) {
    const ConsoleCapture runConsole;
    {
        const interp::VirtualMachineScope other;
        const ConsoleCapture otherConsole;
        consoleWrite(ConsoleStream::Output, "other");
        EXPECT_EQ(otherConsole.output(), "other");
    }
    consoleWrite(ConsoleStream::Output, "run");
    EXPECT_EQ(runConsole.output(), "run");
}

TEST(ConsoleCapture, NeedsAMachine) {
    std::thread([] {
        EXPECT_THROW(ConsoleCapture(), except::InternalError);
        ::testing::internal::CaptureStdout();
        consoleWrite(ConsoleStream::Output, "without a machine");
        EXPECT_EQ(::testing::internal::GetCapturedStdout(), "without a machine");
    }).join();
}

TEST(StandardConsole, WritesEachStreamToTheProcessStream) {
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    console::standardConsole().write(ConsoleStream::Output, "to output\n");
    console::standardConsole().write(ConsoleStream::Error, "to error\n");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "to error\n");
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "to output\n");
}

TEST(UtPrintf, FormatsIntoTheOutputStream) {
    const std::string longText(5000, 'x');
    const ConsoleCapture console;
    warning::utPrintf("%d-%s|", 42, "text");
    warning::utPrintf("%s", longText.c_str());
    warning::utPrintf("%s", "");
    EXPECT_EQ(console.output(), "42-text|" + longText);
    EXPECT_EQ(console.error(), "");
    // A wide character the C locale cannot encode leaves the format unrenderable.
    EXPECT_THROW(warning::utPrintf("%ls", L"\u00e9"), except::InternalError);
    EXPECT_EQ(console.output(), "42-text|" + longText);
}
