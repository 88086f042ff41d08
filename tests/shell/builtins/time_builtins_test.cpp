// Tests of tic and toc (datenum and datevec are shown by the host_text_dates script).
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/console/console_capture.hpp>

using namespace builtin_test;

TEST(TimerBuiltins, TocMeasuresFromItsTic) {
    const ValueArray id = call1("tic");
    EXPECT_EQ(id.className(), "uint64");
    const double elapsed = call1("toc", {id}).realAt(0);
    EXPECT_GE(elapsed, 0);
    EXPECT_LT(elapsed, 60);
    const orrery::console::ConsoleCapture console;
    call("toc", 0, {});
    EXPECT_EQ(console.output().rfind("Elapsed time is ", 0), 0u);
    EXPECT_MSGID(call1("toc", {num(1)}), "ORRERY:invalidInput");
}
