// Tests of tic and toc (datenum and datevec are shown by the host_text_dates script).
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/console/console_capture.hpp>

#include <chrono>
#include <thread>

using namespace builtin_test;

TEST(TimerBuiltins, TocMeasuresFromItsTic) {
    // A known pause: toc reads at least it, and not much more (the slack allows
    // for a loaded machine and the sanitizers), in seconds.
    constexpr double kPause = 0.25;
    constexpr double kSlack = 2.0;
    const ValueArray id = call1("tic");
    EXPECT_EQ(id.className(), "uint64");
    std::this_thread::sleep_for(std::chrono::duration<double>(kPause));
    const double elapsed = call1("toc", {id}).realAt(0);
    EXPECT_GE(elapsed, kPause);
    EXPECT_LT(elapsed, kPause + kSlack);
    const orrery::console::ConsoleCapture console;
    call("toc", 0, {});
    EXPECT_EQ(console.output().rfind("Elapsed time is ", 0), 0u);
    EXPECT_MSGID(call1("toc", {num(1)}), "ORRERY:invalidInput");
}
