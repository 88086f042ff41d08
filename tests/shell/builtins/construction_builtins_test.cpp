// Tests of the sizes and classes that built-ins produce, and of class conversion.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/decimal_comma_locale.hpp"
#include "tests/support/expect_error.hpp"

#include <cmath>

using namespace builtin_test;

TEST(HostBuiltins, ResultsHaveTheLanguagesSizesAndClasses) {
    const std::tuple<const char*, std::vector<ValueArray>, Dims, const char*> cases[] = {
        {"zeros", {row({2, 3, 4})}, Dims{2, 3, 4}, "double"},
        {"zeros", {num(-1)}, Dims{0, 0}, "double"},
        {"ones", {num(2), txt(u"int8")}, Dims{2, 2}, "int8"},
        {"zeros", {txt(u"uint16")}, Dims{1, 1}, "uint16"},
        {"cell", {num(0), num(3)}, Dims{0, 3}, "cell"},
        {"NaN", {num(2), num(1), txt(u"single")}, Dims{2, 1}, "single"},
        {"char", {cellRow({txt(u"ab"), txt(u"c")})}, Dims{2, 2}, "char"},
        {"string", {ValueArray::charArray(Dims{2, 2}, u"acbd")}, Dims{2, 1}, "string"},
        {"string", {row({1, 2.5})}, Dims{1, 2}, "string"},
        {"sum", {ValueArray()}, Dims{1, 1}, "double"},
        {"sum", {ValueArray::zeros(ClassId::Int8, Dims{3, 1})}, Dims{1, 1}, "int8"},
        {"any", {ValueArray()}, Dims{1, 1}, "logical"},
        {"all", {ValueArray::zeros(ClassId::Double, Dims{2, 3}), num(2)}, Dims{2, 1}, "logical"},
        {"abs", {ValueArray::logicalScalar(true)}, Dims{1, 1}, "double"},
        {"isnan", {txt(u"ab")}, Dims{1, 2}, "logical"},
        {"max", {ValueArray::zeros(ClassId::Double, Dims{2, 3}), ValueArray(), num(2)}, Dims{2, 1}, "double"},
        {"max", {ValueArray()}, Dims{0, 0}, "double"},
    };
    for (const auto& [name, inputs, dims, className] : cases) {
        SCOPED_TRACE(name + (" -> " + dims.text()));
        const ValueArray result = call1(name, inputs);
        EXPECT_EQ(result.dims(), dims) << result.dims().text();
        EXPECT_EQ(result.className(), className);
    }
}

TEST(ConversionBuiltins, ConvertValuesAsTheLanguageDoes) {
    EXPECT_EQ(numbers(call1("int8", {row({300, -300, 2.5})})), (std::vector<double>{127, -128, 3}));
    EXPECT_EQ(numbers(call1("double", {str(u"2.5")})), std::vector<double>{2.5});
    EXPECT_TRUE(std::isnan(call1("double", {str(u"2.5x")}).realAt(0)));
    EXPECT_EQ(numbers(call1("sum", {call1("int8", {row({100, 100})})})), std::vector<double>{127});
    EXPECT_EQ(call1("char", {row({72, 105})}).textUtf8(), "Hi");
    EXPECT_EQ(call1("char", {txt(u"a"), txt(u"bcd")}).chars(), u"ab c d") << "rows padded with blanks";
    EXPECT_EQ(*call1("string", {num(3.14159)}).stringAt(0), u"3.1416");
    EXPECT_EQ(*call1("string", {ValueArray::logicalScalar(false)}).stringAt(0), u"false");
    EXPECT_EQ(numbers(call1("logical", {row({0, 2})})), (std::vector<double>{0, 1}));
}

TEST(ConversionBuiltins, ReadStringsAsNumbersUnderAnyLocale) {
    ORRERY_USE_DECIMAL_COMMA_LOCALE();
    const std::pair<std::u16string, double> read[] = {{u"1.5", 1.5}, {u" +2.5e1 ", 25}, {u"-Inf", -INFINITY}};
    for (const auto& [text, number] : read)
        EXPECT_EQ(numbers(call1("double", {str(text)})), std::vector<double>{number});
    EXPECT_TRUE(std::isnan(call1("double", {str(u"1,5")}).realAt(0)));
}

TEST(ConversionBuiltins, RejectValuesWithoutAConversion) {
    EXPECT_MSGID(call1("logical", {num(std::nan(""))}), "ORRERY:value:notLogicalConvertible");
    EXPECT_MSGID(call1("logical", {txt(u"a")}), "ORRERY:host:cannotConvert");
    EXPECT_MSGID(call1("int8", {str(u"5")}), "ORRERY:host:cannotConvert");
    EXPECT_MSGID(call1("char", {cellRow({num(1), ValueArray::cell(Dims{1, 1})})}), "ORRERY:host:cannotConvert");
    EXPECT_MSGID(call1("Inf", {txt(u"int8")}), "ORRERY:host:unknownClass");
    EXPECT_MSGID(call1("ones", {matrix(2, 1, {1, 2})}), "ORRERY:host:badSize");
    EXPECT_MSGID(call1("cell", {cellRow({})}), "ORRERY:host:badSize");
    EXPECT_MSGID_TEXT(call1("zeros", {num(1), txt(u"cell")}), "ORRERY:host:unknownClass",
                      "'cell' is not a class that zeros can create.");
}
