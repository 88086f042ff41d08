// Tests of fprintf, disp and strcmp/strcmpi.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/console/console_capture.hpp>

using namespace builtin_test;

TEST(FprintfAndDisp, WriteToTheChosenStream) {
    const orrery::console::ConsoleCapture console;
    call("fprintf", 0, {txt(u"%d-"), row({1, 2})});
    call("fprintf", 0, {num(1), txt(u"[%s]\\n"), txt(u"out")});
    call("fprintf", 0, {num(2), str(u"err %d\\n"), num(7)});
    const auto count = call("fprintf", 1, {txt(u"\u00e9!")});
    call("disp", 0, {str(u"there")});
    EXPECT_EQ(console.output(), "1-2-[out]\n\xc3\xa9!there\n");
    EXPECT_EQ(console.error(), "err 7\n");
    EXPECT_EQ(numbers(count[0]), std::vector<double>{3}) << "the count is in bytes written";
    EXPECT_MSGID(call("fprintf", 0, {num(3), txt(u"x")}), "ORRERY:host:badFileIdentifier");
    EXPECT_MSGID(call("fprintf", 0, {num(1)}), "ORRERY:notEnoughInputs");
    EXPECT_MSGID(call("fprintf", 0, {ValueArray::cell(Dims{1, 1})}), "ORRERY:sprintf:missingStringArgument");
}

TEST(StrcmpBuiltins, CompareTextsElementByElement) {
    ValueArray strings = ValueArray::strings(Dims{1, 2}, {u"a", std::nullopt});
    // Two inputs, then what strcmp and strcmpi give.
    const std::tuple<const char*, ValueArray, ValueArray, std::vector<double>, std::vector<double>> cases[] = {
        {"case", txt(u"abc"), txt(u"ABC"), {0}, {1}},
        {"char and string", txt(u"abc"), str(u"abc"), {1}, {1}},
        {"different lengths", txt(u"ab"), txt(u"abc"), {0}, {0}},
        {"not text", num(1), num(1), {0}, {0}},
        {"cell against text", cellRow({txt(u"a"), txt(u"A"), num(1)}), txt(u"a"), {1, 0, 0}, {1, 1, 0}},
        {"text against cell", str(u"a"), cellRow({txt(u"a"), txt(u"b")}), {1, 0}, {1, 0}},
        {"cells pairwise", cellRow({txt(u"a"), txt(u"b")}), cellRow({txt(u"a"), txt(u"c")}), {1, 0}, {1, 0}},
        {"missing string", strings, str(u"a"), {1, 0}, {1, 0}},
        {"char matrices", ValueArray::charArray(Dims{2, 1}, u"ab"), ValueArray::charArray(Dims{2, 1}, u"ab"), {1}, {1}},
    };
    for (const auto& [name, a, b, exact, folded] : cases) {
        SCOPED_TRACE(name);
        EXPECT_EQ(numbers(call1("strcmp", {a, b})), exact);
        EXPECT_EQ(numbers(call1("strcmpi", {a, b})), folded);
    }
    EXPECT_MSGID(call1("strcmp", {cellRow({txt(u"a"), txt(u"b")}), cellRow({txt(u"a"), txt(u"b"), txt(u"c")})}),
                 "ORRERY:host:sizeMismatch");
}
