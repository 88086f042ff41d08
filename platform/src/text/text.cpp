// UTF conversions, ASCII tests, UTF-8 decoding and case-insensitive comparison on ICU.
#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace orrery::text {

namespace {

constexpr UChar32 kReplacement = 0xFFFD;

const UChar* icuUnits(std::u16string_view utf16) { return reinterpret_cast<const UChar*>(utf16.data()); }
std::int32_t icuLength(auto text) { return static_cast<std::int32_t>(text.size()); }

// Runs an ICU conversion twice, once to measure and once to fill; fail() raises.
template <class Out, class Convert, class Fail>
Out convertMeasured(Convert convert, Fail fail) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = 0;
    convert(nullptr, 0, &length, &status);
    if (status != U_BUFFER_OVERFLOW_ERROR && U_FAILURE(status)) fail();
    Out out(static_cast<std::size_t>(length), 0);
    status = U_ZERO_ERROR;
    convert(out.data(), length, nullptr, &status);
    if (U_FAILURE(status)) fail();
    return out;
}

[[noreturn]] void failUtf8() { except::throwMessage(except::host::InvalidUtf8()); }
[[noreturn]] void failUtf16() { except::throwMessage(except::host::InvalidUtf16()); }

// UTF-8 to UTF-16; sub is U+FFFD for a lossy conversion, or negative to fail.
std::u16string fromUtf8(std::string_view utf8, UChar32 sub) {
    if (isAscii(utf8)) return asciiToUtf16(utf8);  // the common case needs no conversion
    return convertMeasured<std::u16string>(
        [&](char16_t* out, std::int32_t capacity, std::int32_t* length, UErrorCode* status) {
            u_strFromUTF8WithSub(reinterpret_cast<UChar*>(out), capacity, length, utf8.data(), icuLength(utf8), sub,
                                 nullptr, status);
        },
        failUtf8);
}

// UTF-16 to UTF-8; sub is U+FFFD for a lossy conversion, or negative to fail.
std::string toUtf8(std::u16string_view utf16, UChar32 sub) {
    if (isAscii(utf16)) return std::string(utf16.begin(), utf16.end());
    return convertMeasured<std::string>(
        [&](char* out, std::int32_t capacity, std::int32_t* length, UErrorCode* status) {
            u_strToUTF8WithSub(out, capacity, length, icuUnits(utf16), icuLength(utf16), sub, nullptr, status);
        },
        failUtf16);
}

}  // namespace

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 128; });
}

bool isAscii(std::u16string_view text) {
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 128; });
}

std::u16string utf8ToUtf16(std::string_view utf8) { return fromUtf8(utf8, U_SENTINEL); }
std::u16string utf8ToUtf16Lossy(std::string_view utf8) { return fromUtf8(utf8, kReplacement); }
std::string utf16ToUtf8(std::u16string_view utf16) { return toUtf8(utf16, U_SENTINEL); }
std::string utf16ToUtf8Lossy(std::u16string_view utf16) { return toUtf8(utf16, kReplacement); }

std::string utf16ToAscii(std::u16string_view utf16) {
    if (!isAscii(utf16)) except::throwMessage(except::host::InvalidCharacter());
    return std::string(utf16.begin(), utf16.end());
}

std::u16string asciiToUtf16(std::string_view ascii) {
    std::u16string out;
    out.reserve(ascii.size());
    for (char c : ascii) out.push_back(static_cast<char16_t>(static_cast<unsigned char>(c)));
    return out;
}

std::optional<Utf8Character> decodeUtf8(std::string_view utf8) {
    if (utf8.empty()) return std::nullopt;
    const auto available = static_cast<std::int32_t>(std::min<std::size_t>(utf8.size(), U8_MAX_LENGTH));
    std::int32_t next = 0;
    UChar32 codePoint = 0;
    U8_NEXT(utf8.data(), next, available, codePoint);
    if (codePoint < 0) return std::nullopt;
    return Utf8Character{static_cast<char32_t>(codePoint), static_cast<std::size_t>(next)};
}

int compareIgnoreCase(std::u16string_view a, std::u16string_view b) {
    UErrorCode status = U_ZERO_ERROR;
    const int result =
        u_strCaseCompare(icuUnits(a), icuLength(a), icuUnits(b), icuLength(b), U_FOLD_CASE_DEFAULT, &status);
    if (U_FAILURE(status)) except::throwMessage(except::host::InvalidUtf16());
    return result;
}

bool equalsIgnoreCase(std::u16string_view a, std::u16string_view b) { return compareIgnoreCase(a, b) == 0; }

namespace {

using CaseMapping = int32_t (*)(UChar*, int32_t, const UChar*, int32_t, const char*, UErrorCode*);

// Maps into a buffer of the text's length, and again into the length ICU asks
// for when that is longer.
std::u16string mapCase(std::u16string_view text, CaseMapping mapping) {
    std::u16string out(text.size(), u'\0');
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = mapping(reinterpret_cast<UChar*>(out.data()), static_cast<int32_t>(out.size()), icuUnits(text),
                             icuLength(text), "", &status);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
        out.assign(static_cast<std::size_t>(length), u'\0');
        status = U_ZERO_ERROR;
        length = mapping(reinterpret_cast<UChar*>(out.data()), length, icuUnits(text), icuLength(text), "", &status);
    }
    if (U_FAILURE(status)) except::throwMessage(except::host::InvalidUtf16());
    out.resize(static_cast<std::size_t>(length));
    return out;
}

}  // namespace

std::u16string toUpperCase(std::u16string_view text) { return mapCase(text, u_strToUpper); }
std::u16string toLowerCase(std::u16string_view text) { return mapCase(text, u_strToLower); }

bool equalsIgnoreCaseAscii(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; };
        if (lower(a[i]) != lower(b[i])) return false;
    }
    return true;
}

}  // namespace orrery::text
