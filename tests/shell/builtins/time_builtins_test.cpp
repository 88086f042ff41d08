// Tests of datenum, datevec and tic/toc.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/console/console_capture.hpp>

#include <cmath>

using namespace builtin_test;

TEST(DateBuiltins, DatenumAndDatevecAreInverse) {
    EXPECT_EQ(numbers(call1("datenum", {num(0), num(1), num(1)})), std::vector<double>{1})
        << "day 1 is 1 January of year 0";
    const ValueArray serial = call1("datenum", {num(2024), num(2), num(29), num(12), num(30), num(15)});
    EXPECT_EQ(numbers(call1("datenum", {row({2024, 2, 29, 12, 30, 15})})), numbers(serial));
    EXPECT_EQ(numbers(call1("datevec", {serial})), (std::vector<double>{2024, 2, 29, 12, 30, 15}));

    // Arrays of parts, and one date per row of a matrix.
    const ValueArray days = call1("datenum", {num(2024), row({1, 2}), num(1)});
    EXPECT_EQ(days.realAt(1) - days.realAt(0), 31);
    EXPECT_EQ(numbers(call("datevec", 3, {days})[1]), (std::vector<double>{1, 2}));
    EXPECT_EQ(call1("datevec", {days}).dims(), (Dims{2, 6}));
    const ValueArray rows = call1("datenum", {ValueArray::doubles(Dims{2, 3}, {2024, 2024, 1, 2, 1, 1})});
    EXPECT_EQ(numbers(rows), numbers(days));
    EXPECT_EQ(rows.dims(), (Dims{2, 1}));

    EXPECT_MSGID(call1("datenum", {row({2024, 1})}), "ORRERY:host:badDateVector");
    EXPECT_MSGID(call1("datenum", {num(2024), num(1), num(1), num(0)}), "ORRERY:host:badDateVector");
    EXPECT_MSGID(call1("datenum", {txt(u"2024-01-01")}), "ORRERY:host:notNumber");
    EXPECT_MSGID(call1("datevec", {num(NAN)}), "ORRERY:dates:notFinite");
}

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
