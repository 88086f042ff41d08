// Tests of the typing of format arguments: printf-style formats read from a
// variable argument list, and interpreter values.
#include "diagnostic/log/format_analysis.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

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
using Args = std::vector<PrintfArgument>;

namespace {

// Analyses format with the arguments that follow it, as a C caller passes them.
AnalysedFormat analyse(const char16_t* format, ...) {
    std::va_list cursor;
    va_start(cursor, format);
    AnalysedFormat result = lang::diagnostic::analyseFormat(format, &cursor);
    va_end(cursor);
    return result;
}

void expectAnalysis(const AnalysedFormat& actual, const std::u16string& format, const Args& arguments) {
    EXPECT_EQ(actual.format, format);
    EXPECT_EQ(actual.arguments, arguments);
}

// A "%U" argument that writes "#" and then the number it takes from the next slot.
void writeNumberFromCursor(AppendFunction append, void* sink, std::va_list* cursor) {
    EXPECT_EQ(append(sink, "#", 1), 1U);
    const std::string number = std::to_string(va_arg(*cursor, int));
    append(sink, number.data(), number.size());
}

}  // namespace

TEST(AnalyseFormat, TypesNumbersByTheirSpecifierAndLengthModifier) {
    expectAnalysis(analyse(u"%d items %lld", 7, std::int64_t{1} << 40), u"%d items %lld",
                   {std::int32_t{7}, std::int64_t{1099511627776}});
    // "l" reads only the low 32 bits, yet stores a 64-bit kind.
    expectAnalysis(analyse(u"%ld %ld", -1L, std::int64_t{1} << 40), u"%ld %ld", {std::int64_t{-1}, std::int64_t{0}});
    expectAnalysis(analyse(u"%lu %lu", 4294967295UL, std::uint64_t{1} << 32), u"%lu %lu",
                   {std::uint64_t{4294967295}, std::uint64_t{0}});
    expectAnalysis(analyse(u"%u %o %x %X %llx", 1U, 2U, 3U, 4U, ~std::uint64_t{0}), u"%u %o %x %X %llx",
                   {std::uint32_t{1}, std::uint32_t{2}, std::uint32_t{3}, std::uint32_t{4}, ~std::uint64_t{0}});
    expectAnalysis(analyse(u"%5.2f|%e|%E|%g|%G|%Lf", 1.5, 2.5, 3.5, 4.5, 5.5, 0.25), u"%5.2f|%e|%E|%g|%G|%Lf",
                   {1.5, 2.5, 3.5, 4.5, 5.5, 0.25});
}

TEST(AnalyseFormat, ReadsTextsForStringsCharactersAndPointersAndWhatAWriterAppends) {
    // "%c" reads a string pointer, as "%s" does.
    expectAnalysis(analyse(u"%s and %c [%s]", "h\u00e9", "x", static_cast<const char*>(nullptr)), u"%s and %c [%s]",
                   {std::u16string(u"h\u00e9"), std::u16string(u"x"), std::u16string()});
    int object = 0;
    std::array<char, 65> printed{};
    std::snprintf(printed.data(), printed.size(), "%p", static_cast<const void*>(&object));
    const std::string pointer(printed.data());
    expectAnalysis(analyse(u"at %p.", static_cast<const void*>(&object)), u"at %s.",
                   {std::u16string(pointer.begin(), pointer.end())});
    // A writer's appends make one text, and it consumes the slots it reads.
    expectAnalysis(analyse(u"%U %d", &writeNumberFromCursor, 12, 34), u"%s %d",
                   {std::u16string(u"#12"), std::int32_t{34}});
}

TEST(AnalyseFormat, HandlesSpecifiersWithoutArgumentsAndUnterminatedPercents) {
    expectAnalysis(analyse(u"a%nb%d", static_cast<int*>(nullptr), 4), u"ab%d", {std::int32_t{4}});
    expectAnalysis(analyse(u"%d%%%d", 1, 2), u"%d%%%d", {std::int32_t{1}, std::int32_t{2}});
    expectAnalysis(analyse(u"50% of", 9U), u"50% of", {std::uint32_t{9}});    // "% o" reads an unsigned argument
    expectAnalysis(analyse(u"%\u0434d", 3), u"%\u0434d", {std::int32_t{3}});  // above Latin-1: skipped
    // The text before an unterminated "%" is stored twice.
    for (const auto& [format, stored] : {std::pair{u"abc%", u"abcabc%"}, std::pair{u"50%!", u"5050%!"},
                                         std::pair{u"%", u"%"}, std::pair{u"%\u0434", u"%\u0434"}}) {
        SCOPED_TRACE(text::utf16ToUtf8(format));
        expectAnalysis(analyse(format), stored, {});
    }
    expectAnalysis(analyse(u"%d%", 5), u"%d%", {std::int32_t{5}});
    expectAnalysis(analyse(u"x %d y 5%!", 5), u"x %d y 5 y 5%!", {std::int32_t{5}});
}

TEST(ArgumentOfValue, TypesEachValueByItsClass) {
    struct Case {
        const char* what;
        ValueArray value;
        PrintfArgument expected;
    };
    const Case cases[] = {
        {"char matrix", ValueArray::charArray(Dims{2, 2}, u"acbd"), std::u16string(u"acbd")},
        {"empty char", ValueArray::charsFromUtf8(""), std::u16string()},
        {"int32", ValueArray::numericScalar(ClassId::Int32, -5), std::int32_t{-5}},
        {"uint32", ValueArray::numericScalar(ClassId::UInt32, 5), std::uint32_t{5}},
        {"int64", ValueArray::numericScalar(ClassId::Int64, -6), std::int64_t{-6}},
        {"uint64", ValueArray::numericScalar(ClassId::UInt64, 6), std::uint64_t{6}},
        {"double", ValueArray::scalar(2.5), 2.5},
        {"int8", ValueArray::numericScalar(ClassId::Int8, -7), -7.0},
        {"logical true", ValueArray::logicalScalar(true), 1.0},
        {"int32 row", ValueArray::zeros(ClassId::Int32, Dims{1, 2}), 0.0},
        {"empty double", ValueArray(), 0.0},
        {"cell scalar", ValueArray::cell(Dims{1, 1}), 0.0},
        {"string scalar", ValueArray::string(u"text"), 0.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(argumentOfValue(c.value), c.expected);
    }
}
