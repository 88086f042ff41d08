// UTF conversions and case-insensitive comparison on ICU.
#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

namespace orrery::text {

namespace {
bool isAscii(std::string_view text) {
    for (char c : text)
        if (static_cast<unsigned char>(c) > 127) return false;
    return true;
}
bool isAscii(std::u16string_view text) {
    for (char16_t unit : text)
        if (unit > 127) return false;
    return true;
}
}  // namespace

std::u16string utf8ToUtf16(std::string_view utf8) {
    if (isAscii(utf8)) return asciiToUtf16(utf8);  // the common case needs no conversion
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    const auto inLength = static_cast<int32_t>(utf8.size());
    u_strFromUTF8(nullptr, 0, &length, utf8.data(), inLength, &status);
    if (status != U_BUFFER_OVERFLOW_ERROR && U_FAILURE(status)) except::throwMessage(except::host::InvalidUtf8());
    std::u16string out(static_cast<std::size_t>(length), u'\0');
    status = U_ZERO_ERROR;
    u_strFromUTF8(reinterpret_cast<UChar*>(out.data()), length, nullptr, utf8.data(), inLength, &status);
    if (U_FAILURE(status)) except::throwMessage(except::host::InvalidUtf8());
    return out;
}

std::string utf16ToUtf8(std::u16string_view utf16) {
    if (isAscii(utf16)) return std::string(utf16.begin(), utf16.end());
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    const auto* in = reinterpret_cast<const UChar*>(utf16.data());
    const auto inLength = static_cast<int32_t>(utf16.size());
    u_strToUTF8(nullptr, 0, &length, in, inLength, &status);
    if (status != U_BUFFER_OVERFLOW_ERROR && U_FAILURE(status)) except::throwMessage(except::host::InvalidUtf16());
    std::string out(static_cast<std::size_t>(length), '\0');
    status = U_ZERO_ERROR;
    u_strToUTF8(out.data(), length, nullptr, in, inLength, &status);
    if (U_FAILURE(status)) except::throwMessage(except::host::InvalidUtf16());
    return out;
}

std::string utf16ToAscii(std::u16string_view utf16) {
    std::string out;
    out.reserve(utf16.size());
    for (char16_t unit : utf16) {
        if (unit > 127) except::throwMessage(except::host::InvalidCharacter());
        out.push_back(static_cast<char>(unit));
    }
    return out;
}

std::u16string asciiToUtf16(std::string_view ascii) {
    std::u16string out;
    out.reserve(ascii.size());
    for (char c : ascii) out.push_back(static_cast<char16_t>(static_cast<unsigned char>(c)));
    return out;
}

int compareIgnoreCase(std::u16string_view a, std::u16string_view b) {
    UErrorCode status = U_ZERO_ERROR;
    const int result = u_strCaseCompare(reinterpret_cast<const UChar*>(a.data()), static_cast<int32_t>(a.size()),
                                        reinterpret_cast<const UChar*>(b.data()), static_cast<int32_t>(b.size()),
                                        U_FOLD_CASE_DEFAULT, &status);
    if (U_FAILURE(status)) except::throwMessage(except::host::InvalidUtf16());
    return result;
}

bool equalsIgnoreCase(std::u16string_view a, std::u16string_view b) { return compareIgnoreCase(a, b) == 0; }

bool equalsIgnoreCaseAscii(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; };
        if (lower(a[i]) != lower(b[i])) return false;
    }
    return true;
}

}  // namespace orrery::text
