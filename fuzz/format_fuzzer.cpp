// Fuzzes the typing of a warning's format arguments (from a printf-style format
// with its variable argument list, and from interpreter values) and the
// language's sprintf. The first byte picks the surface.
#include "diagnostic/log/format_analysis.hpp"
#include "fuzz/fuzz_input.hpp"
#include "fuzz/fuzz_values.hpp"

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/interp/sprintf.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/text/text.hpp>

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace orrery;
using fuzz::FuzzInput;
using lang::diagnostic::AppendFunction;

// ---- printf-style formats ------------------------------------------------------

// The analysis reads integer, pointer and writer slots from the general
// argument registers and doubles from the floating-point ones; a caller passes
// what the format names. The harness passes kIntegerSlots and kDoubleSlots of
// each and cuts the format before the first specifier that would need more.
constexpr std::size_t kIntegerSlots = 12;
constexpr std::size_t kDoubleSlots = 8;
constexpr std::u16string_view kConversions = u"diuoxXfeEgGcspn%U";

enum class Slot { None, Integer, Text, Writer, Double };

Slot slotOf(char16_t conversion) {
    switch (conversion) {
        case u'%': return Slot::None;
        case u'f':
        case u'e':
        case u'E':
        case u'g':
        case u'G': return Slot::Double;
        case u'c':
        case u's': return Slot::Text;
        case u'U': return Slot::Writer;
        default: return Slot::Integer;
    }
}

// What the "%U" writers append: the text the input gives them.
std::string writerText;

void writeFromInput(AppendFunction append, void* sink, std::va_list*) {
    const std::size_t half = writerText.size() / 2;
    append(sink, writerText.data(), half);
    append(sink, writerText.data() + half, writerText.size() - half);
}

lang::diagnostic::AnalysedFormat analyse(const std::u16string* format, ...) {
    std::va_list cursor;
    va_start(cursor, format);
    auto result = lang::diagnostic::analyseFormat(*format, &cursor);
    va_end(cursor);
    return result;
}

void fuzzFormatAnalysis(FuzzInput& in) {
    std::u16string format = fuzz::textUnits(in);
    writerText = in.text(16);
    const std::string texts[2] = {in.text(16), in.text(16)};
    std::uint64_t integers[kIntegerSlots] = {};
    std::size_t gp = 0;
    std::size_t fp = 0;
    // The same walk over specifiers as the analysis: a "%" and the first
    // conversion character after it.
    for (std::size_t at = format.find(u'%'); at != std::u16string::npos; at = format.find(u'%', at)) {
        const std::size_t conversion = format.find_first_of(kConversions, at + 1);
        if (conversion == std::u16string::npos) break;
        const Slot slot = slotOf(format[conversion]);
        if (slot == Slot::Double ? fp == kDoubleSlots : slot != Slot::None && gp == kIntegerSlots) {
            format.resize(at);
            break;
        }
        switch (slot) {
            case Slot::None: break;
            case Slot::Double: ++fp; break;
            case Slot::Integer: integers[gp++] = in.bits64(); break;
            case Slot::Text: {
                const std::size_t pick = in.below(3);
                integers[gp++] = pick == 2 ? 0 : reinterpret_cast<std::uintptr_t>(texts[pick].c_str());
                break;
            }
            case Slot::Writer: integers[gp++] = reinterpret_cast<std::uintptr_t>(&writeFromInput); break;
        }
        at = conversion + 1;
    }
    double doubles[kDoubleSlots];
    for (double& d : doubles) d = in.anyDouble();
    const auto& g = integers;
    const auto& d = doubles;
    analyse(&format, g[0], g[1], g[2], g[3], g[4], g[5], g[6], g[7], g[8], g[9], g[10], g[11], d[0], d[1], d[2], d[3],
            d[4], d[5], d[6], d[7]);
}

// ---- interpreter values ------------------------------------------------------------

void fuzzValueArguments(FuzzInput& in) {
    while (!in.empty()) lang::diagnostic::argumentOfValue(fuzz::decodeValue(in));
}

// ---- the language's sprintf -------------------------------------------------------

void fuzzSprintf(FuzzInput& in) {
    std::vector<value::ValueArray> values;
    values.push_back(in.flag() ? value::ValueArray::chars(fuzz::textUnits(in)) : fuzz::decodeValue(in));
    for (std::size_t k = in.below(5); k > 0; --k) values.push_back(fuzz::decodeValue(in));
    std::vector<const value::ValueArray*> pointers;
    for (const auto& v : values) pointers.push_back(&v);
    const auto count = static_cast<std::int32_t>(pointers.size());
    try {
        if (in.flag())
            interp::sprintfText(count, pointers.data());
        else
            interp::fiSprintf(count, pointers.data());
    } catch (const except::IMsgIDException&) {
        // a catalogued refusal (bad field size, unsupported argument) is an answer
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // Message objects and catalogue texts need an interpreter; one serves every input.
    static const interp::VirtualMachineScope machine;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput in(data, size);
    switch (in.below(3)) {
        case 0: fuzzFormatAnalysis(in); break;
        case 1: fuzzValueArguments(in); break;
        default: fuzzSprintf(in); break;
    }
    return 0;
}
