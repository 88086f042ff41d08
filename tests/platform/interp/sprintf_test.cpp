// Tests of fiSprintf: escapes, cycling over data, conversions, and bad input.
#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/interp/sprintf.hpp>
#include <orrery/ocos/class_info.hpp>

#include <limits>
#include <numbers>
#include <string>
#include <vector>

using namespace orrery::value;
using orrery::interp::fiSprintf;
using orrery::testing::row;

static ValueArray num(double value) { return ValueArray::scalar(value); }
static ValueArray chr(std::string_view utf8) { return ValueArray::charsFromUtf8(utf8); }

static ValueArray format(const ValueArray& fmt, const std::vector<ValueArray>& args) {
    std::vector<const ValueArray*> inputs{&fmt};
    for (const auto& arg : args) inputs.push_back(&arg);
    return fiSprintf(static_cast<std::int32_t>(inputs.size()), inputs.data());
}

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kPi = std::numbers::pi;

TEST(Sprintf, FormatsTheDataByTheFormat) {
    const struct {
        std::string format;
        std::vector<ValueArray> args;
        std::string expected;
    } cases[] = {
        // Escapes are processed in the format only.
        {R"(a\tb\nc\\d\a\b\f\r\v)", {}, "a\tb\nc\\d\a\b\f\r\v"},
        {R"(\101\x42\x263A|\7)", {}, "AB\u263A|\a"},
        {R"(\1011\x0041Z)", {}, "A1AZ"},  // at most three octal and four hex digits
        {R"(\q\x|end\)", {}, R"(\q\x|end\)"},
        {"100%% sure", {}, "100% sure"},
        {"%s", {chr(R"(\n%d)")}, R"(\n%d)"},
        // The format cycles over all elements of all arguments.
        {"%d/", {num(1), row({2, 3}), ValueArray::numericScalar(ClassId::Int8, -4)}, "1/2/3/-4/"},
        {"%d:%s;", {num(1), chr("ab"), row({2, 3})}, "1:ab;2:3;"},
        {"%d ", {ValueArray::logicals(Dims{1, 2}, {true, false})}, "1 0 "},
        {"%s,", {ValueArray::strings(Dims{1, 3}, {u"a", std::nullopt, u"c"})}, "a,<missing>,c,"},
        // Char arrays go whole to %s and unit by unit to numeric conversions.
        {"%d ", {chr("ab")}, "97 98 "},
        {"%d %s", {chr("abc")}, "97 bc"},
        {"[%5s][%-4s]%.2s", {chr("ab"), chr("c"), chr("xyz")}, "[   ab][c   ]xy"},
        {"%s|", {chr(""), chr("x")}, "x|"},
        {"%s", {ValueArray::charArray(Dims{2, 2}, u"acbd")}, "acbd"},
        // Numbers a conversion cannot take print as exponent.
        {"%d", {num(1.5)}, "1.500000e+00"},
        {"%10.2i", {num(2.5)}, "  2.50e+00"},
        {"%x|%X|%o|%u", {row({255, 255, 8, 3})}, "ff|FF|10|3"},
        {"%x|%u", {row({-1, -5})}, "-1.000000e+00|-5.000000e+00"},
        {"%c|%c|%c", {row({65, 65.5, -1})}, "A|6.550000e+01|-1.000000e+00"},
        {"%d", {num(1e20)}, "100000000000000000000"},
        {"%d", {ValueArray::numericScalar(ClassId::UInt64, 1e30)}, "18446744073709551615"},  // saturated
        {"%s|%s|%s|%s", {num(65), num(2.5), num(1e20), ValueArray::logicalScalar(true)}, "65|2.5|1e+20|1"},
        {"%d", {ValueArray::string(u"12")}, "12"},
        // Output stops at the first conversion without data; without any data, or
        // without conversions, the literal text is printed once.
        {"%d and %d\n", {row({1, 2, 3})}, "1 and 2\n3 and "},
        {"x=%*d;", {row({5, 1, 7})}, "x=    1;x="},
        {"a%db", {ValueArray()}, "ab"},
        {"all", {row({1, 2, 3})}, "all"},
        // A conversion that cannot be read ends the format.
        {"Done 100%", {}, "Done 100"},
        {"a%db%llld", {row({1, 2})}, "a1ba2b"},
        {"x%5.2y%d", {num(3)}, "x"},
        // Inf and NaN under every conversion.
        {"%d|%f|%x|%c|%s|%e", {row({kInf, -kInf, kNaN, kInf, kNaN, -kInf})}, "Inf|-Inf|NaN|Inf|NaN|-Inf"},
        {"%5d|%-5f|%+d|%05g", {row({kInf, kNaN, kInf, -kInf})}, "  Inf|NaN  |+Inf| -Inf"},
        // Flags, width and precision.
        {"%05d|%-5d|%+d|% d|%.3d", {row({42, 42, 5, 5, 7})}, "00042|42   |+5| 5|007"},
        {"%ld %hd %lld", {row({1, 2, 3})}, "1 2 3"},
        {"%*d|%-*d|%*d|", {row({4, 7, 4, 7, -4, 7})}, "   7|7   |7   |"},
        {"%.*f|%*.*f|%.*f", {row({2, kPi, 8, 3, kPi, -1, kPi})}, "3.14|   3.142|3.141593"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("format: " + c.format);
        const ValueArray result = format(chr(c.format), c.args);
        ASSERT_TRUE(result.is(ClassId::Char));
        EXPECT_EQ(result.dims(), (Dims{1, result.numel()}));
        EXPECT_EQ(result.textUtf8(), c.expected);
    }
    EXPECT_EQ(format(chr(""), {}).dims(), (Dims{1, 0}));
    EXPECT_EQ(format(chr("%100000d"), {num(1)}).numel(), 100000u);
    // A string format gives a string scalar.
    const ValueArray result = format(ValueArray::string(u"%d-"), {row({1, 2})});
    ASSERT_TRUE(result.is(ClassId::String));
    EXPECT_EQ(result.text(), u"1-2-");
}

TEST(Sprintf, RejectsBadFormatsAndArguments) {
    const auto object = ValueArray::objectArray(std::make_shared<orrery::ocos::COSClassInfo>("demo.Thing"), Dims{1, 1});
    const struct {
        ValueArray format;
        std::vector<ValueArray> args;
        const char* identifier;
    } cases[] = {
        {num(5), {}, "ORRERY:sprintf:missingStringArgument"},
        {ValueArray::charArray(Dims{2, 1}, u"ab"), {}, "ORRERY:sprintf:missingStringArgument"},
        {ValueArray::missingString(), {}, "ORRERY:sprintf:missingStringArgument"},
        {chr("%100001d"), {num(1)}, "ORRERY:sprintf:badFieldSize"},
        {chr("%.99999999999999999999f"), {num(1)}, "ORRERY:sprintf:badFieldSize"},
        {chr("%*d"), {row({1.5, 1})}, "ORRERY:sprintf:badFieldSize"},
        {chr("%.*d"), {row({kNaN, 1})}, "ORRERY:sprintf:badFieldSize"},
        {chr("%*d"), {ValueArray::string(u"5"), num(1)}, "ORRERY:sprintf:badFieldSize"},
        {chr("no conversions"), {ValueArray::structArray(Dims{1, 1})}, "ORRERY:sprintf:unsupportedArgument"},
        {chr("%d"), {num(1), object}, "ORRERY:sprintf:unsupportedArgument"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.identifier);
        EXPECT_MSGID(format(c.format, c.args), c.identifier);
    }
    EXPECT_MSGID_TEXT(format(chr("%d"), {ValueArray::cell(Dims{0, 0})}), "ORRERY:sprintf:unsupportedArgument",
                      "sprintf cannot format a value of class cell; use numbers, logicals, characters or strings.");
}

TEST(Sprintf, RejectsMissingInputs) {
    const ValueArray fmt = chr("%d");
    const ValueArray* inputs[] = {&fmt, nullptr};
    EXPECT_MSGID(fiSprintf(2, inputs), "ORRERY:invalidInput");
}
