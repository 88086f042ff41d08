// Taking a sprintf format apart: escapes, "%%", and conversions with their flags and fields.
#include "format_parser.hpp"

#include "sprintf_messages.hpp"

#include <orrery/except/throw_message.hpp>

#include <cstdint>
#include <optional>

namespace orrery::interp::detail {
namespace {

constexpr std::u16string_view conversionTypes = u"diuoxXcsfeEgG";

std::optional<int> digitValue(char16_t unit, int base) {
    int value = -1;
    if (unit >= u'0' && unit <= u'9')
        value = unit - u'0';
    else if (unit >= u'a' && unit <= u'f')
        value = unit - u'a' + 10;
    else if (unit >= u'A' && unit <= u'F')
        value = unit - u'A' + 10;
    if (value < 0 || value >= base) return std::nullopt;
    return value;
}

std::optional<char16_t> simpleEscape(char16_t unit) {
    switch (unit) {
        case u'n': return u'\n';
        case u't': return u'\t';
        case u'\\': return u'\\';
        case u'a': return u'\a';
        case u'b': return u'\b';
        case u'f': return u'\f';
        case u'r': return u'\r';
        case u'v': return u'\v';
        default: return std::nullopt;
    }
}

class FormatParser {
public:
    explicit FormatParser(std::u16string_view format) : format_(format) {}

    FormatItems parse() {
        while (pos_ < format_.size()) {
            const char16_t unit = format_[pos_];
            if (unit == u'\\') {
                readEscape();
            } else if (unit == u'%' && peek(1) != u'%') {
                readConversion();
            } else if (unit == u'%') {
                literal_ += unit;
                pos_ += 2;
            } else {
                readPlainRun();
            }
        }
        flushLiteral();
        return std::move(items_);
    }

private:
    char16_t peek(std::size_t ahead) const { return pos_ + ahead < format_.size() ? format_[pos_ + ahead] : u'\0'; }

    // Takes the units up to the next escape or conversion as they stand.
    void readPlainRun() {
        std::size_t end = pos_;
        while (end < format_.size() && format_[end] != u'\\' && format_[end] != u'%') ++end;
        literal_.append(format_.substr(pos_, end - pos_));
        pos_ = end;
    }

    void flushLiteral() {
        if (!literal_.empty()) items_.emplace_back(std::move(literal_));
        literal_.clear();
    }

    // Reads one to maxDigits digits of the base from start and moves past them;
    // nothing when no digit stands there.
    std::optional<char16_t> readNumericEscape(std::size_t start, int base, std::size_t maxDigits) {
        std::uint32_t value = 0;
        std::size_t count = 0;
        while (count < maxDigits && start + count < format_.size()) {
            const auto digit = digitValue(format_[start + count], base);
            if (!digit) break;
            value = value * static_cast<std::uint32_t>(base) + static_cast<std::uint32_t>(*digit);
            ++count;
        }
        if (count == 0) return std::nullopt;
        pos_ = start + count;
        return static_cast<char16_t>(value);
    }

    void readEscape() {
        if (const auto simple = simpleEscape(peek(1))) {
            literal_ += *simple;
            pos_ += 2;
            return;
        }
        const auto coded = peek(1) == u'x' ? readNumericEscape(pos_ + 2, 16, 4) : readNumericEscape(pos_ + 1, 8, 3);
        if (coded) {
            literal_ += *coded;
        } else {
            literal_ += u'\\';
            ++pos_;
        }
    }

    void readFlags(ConversionFlags& flags) {
        for (;; ++pos_) {
            switch (peek(0)) {
                case u'-': flags.leftAlign = true; break;
                case u'+': flags.plusSign = true; break;
                case u' ': flags.spaceSign = true; break;
                case u'0': flags.zeroPad = true; break;
                case u'#': flags.alternate = true; break;
                default: return;
            }
        }
    }

    FieldSize readFieldSize() {
        if (peek(0) == u'*') {
            ++pos_;
            return {FieldSize::Source::FromData, 0};
        }
        FieldSize size;
        while (const auto digit = digitValue(peek(0), 10)) {
            size.source = FieldSize::Source::Written;
            size.value = size.value * 10 + *digit;
            if (size.value > maxFieldSize) except::throwMessage(BadFieldSize(maxFieldSize));
            ++pos_;
        }
        return size;
    }

    void readConversion() {
        ++pos_;
        Conversion conversion;
        readFlags(conversion.flags);
        conversion.width = readFieldSize();
        if (peek(0) == u'.') {
            ++pos_;
            conversion.precision = readFieldSize();
            if (conversion.precision.source == FieldSize::Source::None)
                conversion.precision = {FieldSize::Source::Written, 0};
        }
        for (int modifiers = 0; modifiers < 2 && (peek(0) == u'l' || peek(0) == u'h'); ++modifiers) ++pos_;
        const char16_t type = pos_ < format_.size() ? format_[pos_] : u'\0';
        if (type == u'\0' || conversionTypes.find(type) == std::u16string_view::npos) {
            // The language ends the format at a conversion it cannot read, so a
            // message such as "Done 100%" prints as far as it can.
            pos_ = format_.size();
            return;
        }
        ++pos_;
        conversion.type = static_cast<char>(type);
        flushLiteral();
        items_.emplace_back(conversion);
    }

    std::u16string_view format_;
    std::size_t pos_ = 0;
    std::u16string literal_;
    FormatItems items_;
};

}  // namespace

FormatItems parseFormat(std::u16string_view format) { return FormatParser(format).parse(); }

bool hasConversion(const FormatItems& items) {
    for (const auto& item : items)
        if (std::holds_alternative<Conversion>(item)) return true;
    return false;
}

}  // namespace orrery::interp::detail
