// Random warning records for the log tests: texts over the whole UTF-16 range
// (empty ones too), every kind of argument, stacks of 0 to 3 frames, and times
// that read back from a log to the same double.
#pragma once

#include <orrery/interp/dates.hpp>
#include <orrery/lang/warning.hpp>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace orrery::test {

/// Generates records whose texts cover the whole UTF-16 range, with weight on
/// the code units that the log escapes.
class RecordGenerator {
public:
    explicit RecordGenerator(std::uint32_t seed) : random_(seed) {}

    lang::diagnostic::Warning record() {
        lang::diagnostic::Warning warning;
        warning.setIdentifier(pick(4) == 0 ? ""
                                           : "test:c" + std::to_string(pick(1000)) + ":m_" + std::to_string(pick(9)));
        warning.setWasDisabled(pick(2) == 0);
        warning.setTime(time());
        warning.setMessage(text());
        warning.setFormat(text());
        std::vector<lang::PrintfArgument> arguments(pick(5));
        for (auto& argument : arguments) argument = this->argument();
        warning.setArguments(std::move(arguments));
        std::vector<lang::StackFrame> frames(pick(4));
        // XML reads a tab in an attribute value as a space, and the log writes tabs as
        // they are: frame texts, which are attribute values, carry none.
        for (auto& frame : frames) frame = {text(false), text(false), static_cast<std::uint32_t>(random_())};
        warning.setStack(std::move(frames));
        return warning;
    }

private:
    std::size_t pick(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_); }

    // Whole milliseconds, built as the log's reader builds a time, so that it
    // reads back to the same double.
    double time() {
        const auto n = [this](int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); };
        return interp::datenumFromDatevec(n(1900, 2100), n(1, 12), n(1, 28), n(0, 23), n(0, 59),
                                          n(0, 59) + n(0, 999) / 1000.0);
    }

    std::u16string text(bool withTabs = true) {
        static const char16_t kEscaped[] = {0,      u'\t',  u'\n',  u'\r',  u'#',   u'"',   u'&',   u'\'',  u'<',
                                            u'>',   0x7F,   0x85,   0x9F,   0xA0,   0xD7FF, 0xE000, 0xFDCF, 0xFDD0,
                                            0xFDEF, 0xFDF0, 0xFFFD, 0xFFFE, 0xFFFF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF};
        std::u16string out;
        for (std::size_t length = pick(12); length > 0; --length) {
            switch (pick(3)) {
                case 0: out += kEscaped[pick(std::size(kEscaped))]; break;
                case 1: out += static_cast<char16_t>(u'a' + pick(26)); break;
                default: out += static_cast<char16_t>(pick(0x10000));
            }
        }
        if (!withTabs) std::replace(out.begin(), out.end(), u'\t', u' ');
        return out;
    }

    lang::PrintfArgument argument() {
        switch (pick(7)) {
            case 0: return static_cast<std::int32_t>(random_());
            case 1: return static_cast<std::uint32_t>(random_());
            case 2: return static_cast<std::int64_t>(random_());
            case 3: return static_cast<std::uint64_t>(random_());
            case 4: return std::bit_cast<double>(static_cast<std::uint64_t>(random_()));  // any double, NaNs too
            case 5: return std::u16string(1, static_cast<char16_t>(pick(0x10000)));
            default: return text();
        }
    }

    std::mt19937_64 random_;
};

}  // namespace orrery::test
