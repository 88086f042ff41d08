// Fuzzes the texts of a warning log one at a time: the "#" unescaper (alone,
// and as the inverse of the writer's escape), the conversion of argument texts,
// the normalisation of log file names, and the scan of time texts (which must
// read exactly what the C library's sscanf reads). The first byte picks the surface.
#include "diagnostic/log/log_argument_conversion.hpp"
#include "diagnostic/log/log_file_name.hpp"
#include "diagnostic/log/log_text_escape.hpp"
#include "diagnostic/log/log_text_unescaper.hpp"
#include "diagnostic/log/log_time_reading.hpp"
#include "fuzz/fuzz_input.hpp"
#include "fuzz/fuzz_values.hpp"

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/text/text.hpp>

#include <boost/lexical_cast.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

namespace {

using namespace orrery;
using namespace orrery::lang::diagnostic;
using fuzz::FuzzInput;

[[noreturn]] void finding(std::string_view what) {
    std::cerr << "FINDING: " << what << std::endl;
    std::abort();
}

// What an XML parser makes of the five entity references the escape writes.
std::u16string decodeEntities(std::u16string_view text) {
    constexpr std::array<std::pair<std::u16string_view, char16_t>, 5> entities = {
        {{u"&quot;", u'"'}, {u"&amp;", u'&'}, {u"&apos;", u'\''}, {u"&lt;", u'<'}, {u"&gt;", u'>'}}};
    std::u16string decoded;
    for (std::size_t at = 0; at < text.size();) {
        bool matched = false;
        for (const auto& [entity, unit] : entities) {
            if (text.substr(at).starts_with(entity)) {
                decoded += unit;
                at += entity.size();
                matched = true;
                break;
            }
        }
        if (!matched) decoded += text[at++];
    }
    return decoded;
}

void fuzzUnescape(FuzzInput& in) {
    try {
        unescapeLogText(fuzz::textUnits(in));
    } catch (const except::IMsgIDException&) {
        // a malformed escape is refused by its identifier
    }
}

void fuzzEscapeRoundTrip(FuzzInput& in) {
    const std::u16string original = fuzz::textUnits(in);
    const std::u16string escaped = text::utf8ToUtf16(escapeLogText(original));
    if (escaped.find_first_of(u"\n\r") != std::u16string::npos) finding("the escaped text holds a line break");
    if (unescapeLogText(decodeEntities(escaped)) != original) finding("unescaping does not undo the escape");
}

void fuzzArgumentConversion(FuzzInput& in) {
    const auto type = static_cast<LogArgType>(1 + in.below(7));
    const std::string typeName = in.text(8);
    logArgTypeNamed(typeName);
    try {
        convertLogArgument(type, fuzz::textUnits(in));
    } catch (const boost::bad_lexical_cast&) {
        // a text that does not convert to its type
    }
}

void fuzzFileName(FuzzInput& in) {
    try {
        normaliseLogFileName(fuzz::textUnits(in));
    } catch (const except::IMsgIDException&) {
        // an empty name, a folder or another extension
    }
}

void fuzzTimeText(FuzzInput& in) {
    const std::string text(in.text(48).c_str());  // up to the first NUL, as the reader sees it
    LogTimeFields fields{};
    const bool scanned = scanLogTime(text.c_str(), fields);
    LogTimeFields expected{};
    auto& e = expected;
    const bool scannedByLibrary = std::sscanf(text.c_str(), "%d-%d-%d %d:%d:%d%*[.,]%d %d", &e[0], &e[1], &e[2], &e[3],
                                              &e[4], &e[5], &e[6], &e[7]) == 8;
    if (scanned != scannedByLibrary || (scanned && fields != expected))
        finding("the time scan differs from sscanf for \"" + text + "\"");
    try {
        readLogTime(text.c_str(),
                    interp::UtcOffset{static_cast<int>(in.below(27)) - 13, static_cast<int>(in.below(60))});
    } catch (const except::IMsgIDException&) {
        // not a time text, or a date out of range
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    static const interp::VirtualMachineScope machine;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput in(data, size);
    switch (in.below(5)) {
        case 0: fuzzUnescape(in); break;
        case 1: fuzzEscapeRoundTrip(in); break;
        case 2: fuzzArgumentConversion(in); break;
        case 3: fuzzFileName(in); break;
        default: fuzzTimeText(in); break;
    }
    return 0;
}
