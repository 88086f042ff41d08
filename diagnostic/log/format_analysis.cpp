// Typing a warning's format arguments for the log.
#include "diagnostic/log/format_analysis.hpp"

#include <orrery/text/text.hpp>

#include <array>
#include <cstdint>
#include <cstdio>

namespace orrery::lang::diagnostic {
namespace {

constexpr std::u16string_view kConversions = u"diuoxXfeEgGcspn%U";

// Membership of the conversion set for characters below 256.
constexpr std::array<bool, 256> conversionTable() {
    std::array<bool, 256> table{};
    for (const char16_t c : kConversions) table[c] = true;
    return table;
}

constexpr std::array<bool, 256> kIsConversion = conversionTable();

bool isConversion(char16_t c) {
    if (c < kIsConversion.size()) return kIsConversion[c];
    return kConversions.find(c) != std::u16string_view::npos;
}

// ---- reading slots ----------------------------------------------------------------

std::uint64_t readSlot(std::va_list* cursor) { return va_arg(*cursor, std::uint64_t); }

std::uint32_t readLow32(std::va_list* cursor) { return static_cast<std::uint32_t>(readSlot(cursor)); }

std::u16string readText(std::va_list* cursor) {
    const char* utf8 = va_arg(*cursor, const char*);
    return utf8 == nullptr ? std::u16string() : text::utf8ToUtf16Lossy(utf8);
}

std::u16string readPointer(std::va_list* cursor) {
    std::array<char, 65> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%p", va_arg(*cursor, const void*));
    return text::asciiToUtf16(buffer.data());
}

std::size_t appendUtf8(void* sink, const char* utf8, std::size_t length) {
    static_cast<std::u16string*>(sink)->append(text::utf8ToUtf16Lossy(std::string_view(utf8, length)));
    return length;
}

std::u16string readWriter(std::va_list* cursor) {
    const auto writer = va_arg(*cursor, WriterFunction);
    std::u16string written;
    if (writer != nullptr) writer(&appendUtf8, &written, cursor);
    return written;
}

// ---- typing one specifier ---------------------------------------------------------

enum class Length { Plain, Long, LongLong };

// What "l" or "ll" just before the conversion at `at` says. A "%" comes before
// the conversion, so an "l" there has a character before it.
Length lengthBefore(std::u16string_view format, std::size_t at) {
    if (format[at - 1] != u'l') return Length::Plain;
    return format[at - 2] == u'l' ? Length::LongLong : Length::Long;
}

PrintfArgument readSigned(std::va_list* cursor, Length length) {
    if (length == Length::LongLong) return static_cast<std::int64_t>(readSlot(cursor));
    const auto low = static_cast<std::int32_t>(readLow32(cursor));
    if (length == Length::Long) return static_cast<std::int64_t>(low);
    return low;
}

PrintfArgument readUnsigned(std::va_list* cursor, Length length) {
    if (length == Length::LongLong) return readSlot(cursor);
    const std::uint32_t low = readLow32(cursor);
    if (length == Length::Long) return static_cast<std::uint64_t>(low);
    return low;
}

// Reads the slots of the specifier format[start .. at] (at: the conversion), adds
// its argument and appends what the stored format gets in its place.
void typeSpecifier(std::u16string_view format, std::size_t start, std::size_t at, std::va_list* cursor,
                   AnalysedFormat& result) {
    const std::u16string_view specifier = format.substr(start, at - start + 1);
    switch (format[at]) {
        case u'd':
        case u'i': result.arguments.push_back(readSigned(cursor, lengthBefore(format, at))); break;
        case u'u':
        case u'o':
        case u'x':
        case u'X': result.arguments.push_back(readUnsigned(cursor, lengthBefore(format, at))); break;
        case u'f':
        case u'e':
        case u'E':
        case u'g':
        case u'G': result.arguments.emplace_back(va_arg(*cursor, double)); break;
        case u'c':
        case u's': result.arguments.emplace_back(readText(cursor)); break;
        case u'p':
            result.arguments.emplace_back(readPointer(cursor));
            result.format += u"%s";
            return;
        case u'U':
            result.arguments.emplace_back(readWriter(cursor));
            result.format += u"%s";
            return;
        case u'n': readSlot(cursor); return;
        default: break;  // "%%"
    }
    result.format += specifier;
}

}  // namespace

AnalysedFormat analyseFormat(std::u16string_view format, std::va_list* cursor) {
    AnalysedFormat result;
    std::size_t pos = 0;
    while (true) {
        const std::size_t percent = format.find(u'%', pos);
        if (percent == std::u16string_view::npos) {
            result.format += format.substr(pos);
            return result;
        }
        result.format += format.substr(pos, percent - pos);
        std::size_t at = percent + 1;
        while (at < format.size() && !isConversion(format[at])) ++at;
        if (at == format.size()) {
            // No conversion follows: the rest is stored from pos, so the text
            // before this "%" is stored a second time.
            result.format += format.substr(pos);
            return result;
        }
        typeSpecifier(format, percent, at, cursor, result);
        pos = at + 1;
    }
}

PrintfArgument argumentOfValue(const value::ValueArray& value) {
    using value::ClassId;
    if (value.is(ClassId::Char)) return std::u16string(value.chars());
    if (!value.isScalar()) return 0.0;
    switch (value.classId()) {
        case ClassId::Int32: return value.data<std::int32_t>()[0];
        case ClassId::UInt32: return value.data<std::uint32_t>()[0];
        case ClassId::Int64: return value.data<std::int64_t>()[0];
        case ClassId::UInt64: return value.data<std::uint64_t>()[0];
        default: break;
    }
    if (value.isNumeric() || value.is(ClassId::Logical)) return value.realAt(0);
    return 0.0;
}

}  // namespace orrery::lang::diagnostic
