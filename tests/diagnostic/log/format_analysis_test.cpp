// Tests of the typing of format arguments: printf-style formats read from a
// variable argument list, and interpreter values.
#include "diagnostic/log/format_analysis.hpp"

#include "tests/diagnostic/log/printf_argument_print.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

using namespace orrery;
using lang::PrintfArgument;
using lang::diagnostic::AnalysedFormat;
using lang::diagnostic::AppendFunction;
using lang::diagnostic::argumentOfValue;
using value::ClassId;
using value::Dims;
using value::ValueArray;

namespace {

// Analyses format with the arguments that follow it, as a C caller passes them.
AnalysedFormat analyse(const char16_t* format, ...) {
    std::va_list cursor;
    va_start(cursor, format);
    AnalysedFormat result = lang::diagnostic::analyseFormat(format, &cursor);
    va_end(cursor);
    return result;
}

void expectAnalysis(const AnalysedFormat& actual, const std::u16string& format,
                    const std::vector<PrintfArgument>& arguments) {
    EXPECT_EQ(actual.format, format);
    EXPECT_EQ(actual.arguments, arguments);
}

// A "%U" argument that writes "ab" and then "c".
void writeAbc(AppendFunction append, void* sink, std::va_list* /*cursor*/) {
    EXPECT_EQ(append(sink, "ab", 2), 2U);
    append(sink, "c", 1);
}

// A "%U" argument that takes its number from the next slot.
void writeNumberFromCursor(AppendFunction append, void* sink, std::va_list* cursor) {
    const int number = va_arg(*cursor, int);
    const std::string text = "#" + std::to_string(number);
    append(sink, text.data(), text.size());
}

}  // namespace

// ---- integers -----------------------------------------------------------------------

TEST(AnalyseFormat, TypesSignedIntegersByTheirLengthModifier) {
    expectAnalysis(analyse(u"%d items", 7), u"%d items", {std::int32_t{7}});
    expectAnalysis(analyse(u"%i", -3), u"%i", {std::int32_t{-3}});
    expectAnalysis(analyse(u"%lld", std::int64_t{1} << 40), u"%lld", {std::int64_t{1099511627776}});
    // "l" reads only the low 32 bits, yet stores a 64-bit kind.
    expectAnalysis(analyse(u"%ld", -1L), u"%ld", {std::int64_t{-1}});
    expectAnalysis(analyse(u"%ld", std::int64_t{1} << 40), u"%ld", {std::int64_t{0}});
    expectAnalysis(analyse(u"%d", std::int64_t{0x1'0000'0005}), u"%d", {std::int32_t{5}});
}

TEST(AnalyseFormat, TypesUnsignedIntegersByTheirLengthModifier) {
    expectAnalysis(analyse(u"%u %o %x %X", 1U, 2U, 3U, 4U), u"%u %o %x %X",
                   {std::uint32_t{1}, std::uint32_t{2}, std::uint32_t{3}, std::uint32_t{4}});
    expectAnalysis(analyse(u"%lu", 4294967295UL), u"%lu", {std::uint64_t{4294967295}});
    expectAnalysis(analyse(u"%lu", std::uint64_t{1} << 32), u"%lu", {std::uint64_t{0}});
    expectAnalysis(analyse(u"%llx", ~std::uint64_t{0}), u"%llx", {~std::uint64_t{0}});
}

// ---- doubles, texts, pointers -----------------------------------------------------------

TEST(AnalyseFormat, KeepsFlagsWidthAndPrecisionOfDoubles) {
    expectAnalysis(analyse(u"%5.2f|%e|%E|%g|%G", 1.5, 2.5, 3.5, 4.5, 5.5), u"%5.2f|%e|%E|%g|%G",
                   {1.5, 2.5, 3.5, 4.5, 5.5});
    expectAnalysis(analyse(u"%Lf", 0.25), u"%Lf", {0.25});
}

TEST(AnalyseFormat, ReadsTextsForStringsAndCharacters) {
    expectAnalysis(analyse(u"%s and %c", "h\u00e9", "x"), u"%s and %c",
                   {std::u16string(u"h\u00e9"), std::u16string(u"x")});
    expectAnalysis(analyse(u"[%s]", static_cast<const char*>(nullptr)), u"[%s]", {std::u16string()});
}

TEST(AnalyseFormat, TurnsPointersIntoTextAndTheirSpecifierIntoS) {
    int object = 0;
    std::array<char, 65> expected{};
    std::snprintf(expected.data(), expected.size(), "%p", static_cast<const void*>(&object));
    const std::string printed(expected.data());
    expectAnalysis(analyse(u"at %p.", static_cast<const void*>(&object)), u"at %s.",
                   {std::u16string(printed.begin(), printed.end())});
}

// ---- specifiers without arguments -----------------------------------------------------

TEST(AnalyseFormat, RemovesNAndConsumesItsSlot) {
    expectAnalysis(analyse(u"a%nb%d", static_cast<int*>(nullptr), 4), u"ab%d", {std::int32_t{4}});
}

TEST(AnalyseFormat, KeepsDoublePercentWithoutReadingASlot) {
    expectAnalysis(analyse(u"100%%"), u"100%%", {});
    expectAnalysis(analyse(u"%d%%%d", 1, 2), u"%d%%%d", {std::int32_t{1}, std::int32_t{2}});
}

TEST(AnalyseFormat, PairsALonePercentWithTheNextConversion) {
    // "% o" is a specifier: it reads an unsigned argument.
    expectAnalysis(analyse(u"50% of", 9U), u"50% of", {std::uint32_t{9}});
}

TEST(AnalyseFormat, StoresTheTextBeforeAnUnterminatedPercentTwice) {
    struct Case {
        const char16_t* format;
        const char16_t* stored;
    };
    for (const Case& c :
         {Case{u"abc%", u"abcabc%"}, Case{u"50%!", u"5050%!"}, Case{u"%", u"%"}, Case{u"plain text", u"plain text"}}) {
        SCOPED_TRACE(std::string(c.format, c.format + std::char_traits<char16_t>::length(c.format)));
        expectAnalysis(analyse(c.format), c.stored, {});
    }
    expectAnalysis(analyse(u"%d%", 5), u"%d%", {std::int32_t{5}});
    expectAnalysis(analyse(u"x %d y 5%!", 5), u"x %d y 5 y 5%!", {std::int32_t{5}});
}

TEST(AnalyseFormat, SkipsCharactersAboveLatinOneWhenSearchingTheConversion) {
    expectAnalysis(analyse(u"%\u0434d", 3), u"%\u0434d", {std::int32_t{3}});
    expectAnalysis(analyse(u"%\u0434"), u"%\u0434", {});
}

// ---- writers ------------------------------------------------------------------------------

TEST(AnalyseFormat, CollectsWhatAWriterAppendsIntoOneText) {
    expectAnalysis(analyse(u"value %U!", &writeAbc), u"value %s!", {std::u16string(u"abc")});
}

TEST(AnalyseFormat, AWriterConsumesTheSlotsItReads) {
    expectAnalysis(analyse(u"%U %d", &writeNumberFromCursor, 12, 34), u"%s %d",
                   {std::u16string(u"#12"), std::int32_t{34}});
}

// ---- interpreter values ---------------------------------------------------------------

TEST(ArgumentOfValue, TypesEachValueByItsClass) {
    struct Case {
        const char* what;
        ValueArray value;
        PrintfArgument expected;
    };
    const Case cases[] = {
        {"char row", ValueArray::charsFromUtf8("abc"), std::u16string(u"abc")},
        {"char matrix", ValueArray::charArray(Dims{2, 2}, u"acbd"), std::u16string(u"acbd")},
        {"empty char", ValueArray::charsFromUtf8(""), std::u16string()},
        {"int32", ValueArray::numericScalar(ClassId::Int32, -5), std::int32_t{-5}},
        {"uint32", ValueArray::numericScalar(ClassId::UInt32, 5), std::uint32_t{5}},
        {"int64", ValueArray::numericScalar(ClassId::Int64, -6), std::int64_t{-6}},
        {"uint64", ValueArray::numericScalar(ClassId::UInt64, 6), std::uint64_t{6}},
        {"double", ValueArray::scalar(2.5), 2.5},
        {"single", ValueArray::numericScalar(ClassId::Single, 0.5), 0.5},
        {"int8", ValueArray::numericScalar(ClassId::Int8, -7), -7.0},
        {"uint16", ValueArray::numericScalar(ClassId::UInt16, 7), 7.0},
        {"logical true", ValueArray::logicalScalar(true), 1.0},
        {"double matrix", ValueArray::doubles(Dims{2, 2}, {1, 2, 3, 4}), 0.0},
        {"int32 row", ValueArray::zeros(ClassId::Int32, Dims{1, 2}), 0.0},
        {"empty double", ValueArray(), 0.0},
        {"cell scalar", ValueArray::cell(Dims{1, 1}), 0.0},
        {"struct scalar", ValueArray::structArray(Dims{1, 1}), 0.0},
        {"string scalar", ValueArray::string(u"text"), 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(argumentOfValue(c.value), c.expected);
    }
}
