// Tests of fprintf, disp and strcmp/strcmpi.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

using namespace builtin_test;

TEST(FprintfBuiltin, WritesToTheChosenStream) {
    const CapturedOutput output;
    call("fprintf", 0, {txt(u"%d-"), row({1, 2})});
    call("fprintf", 0, {num(1), txt(u"[%s]\\n"), txt(u"out")});
    call("fprintf", 0, {num(2), str(u"err %d\\n"), num(7)});
    const auto count = call("fprintf", 1, {txt(u"\u00e9!")});
    EXPECT_EQ(output.out(), "1-2-[out]\n\xc3\xa9!");
    EXPECT_EQ(output.err(), "err 7\n");
    EXPECT_EQ(numbers(count[0]), std::vector<double>{3}) << "the count is in bytes written";
    EXPECT_MSGID(call("fprintf", 0, {num(3), txt(u"x")}), "ORRERY:host:badFileIdentifier");
    EXPECT_MSGID(call("fprintf", 0, {num(1)}), "ORRERY:notEnoughInputs");
    EXPECT_MSGID(call("fprintf", 0, {ValueArray::cell(Dims{1, 1})}), "ORRERY:sprintf:missingStringArgument");
}

TEST(DispBuiltin, PrintsTextAndANewline) {
    const CapturedOutput output;
    call("disp", 0, {txt(u"hi")});
    call("disp", 0, {str(u"there")});
    EXPECT_EQ(output.out(), "hi\nthere\n");
}

TEST(StrcmpBuiltins, CompareTextsElementByElement) {
    ValueArray strings = ValueArray::strings(Dims{1, 2}, {u"a", std::nullopt});
    const struct {
        const char* name;
        ValueArray a, b;
        std::vector<double> exact, folded;
    } cases[] = {
        {"char rows", txt(u"abc"), txt(u"abc"), {1}, {1}},
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
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(numbers(call1("strcmp", {c.a, c.b})), c.exact);
        EXPECT_EQ(numbers(call1("strcmpi", {c.a, c.b})), c.folded);
    }
    EXPECT_MSGID(call1("strcmp", {cellRow({txt(u"a"), txt(u"b")}), cellRow({txt(u"a"), txt(u"b"), txt(u"c")})}),
                 "ORRERY:host:sizeMismatch");
}
