// The language's sprintf: cycles a parsed format over the elements of its data.
#include <orrery/interp/sprintf.hpp>

#include "format_conversion.hpp"
#include "format_parser.hpp"
#include "sprintf_arguments.hpp"
#include "sprintf_messages.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>

#include <cstdlib>
#include <cstring>

namespace orrery::interp {
namespace {

using detail::ArgumentCursor;
using detail::Conversion;
using detail::FieldSize;
using detail::FormatItems;

// A width or precision read from the data: a whole number of at most maxFieldSize
// in magnitude (a negative width left-aligns, a negative precision counts as none).
int fieldSizeFromData(ArgumentCursor& data) {
    const detail::Element element = data.next();
    const auto* number = std::get_if<detail::Number>(&element);
    const auto* whole = number != nullptr ? std::get_if<std::int64_t>(&number->exact) : nullptr;
    if (whole == nullptr || *whole > detail::maxFieldSize || *whole < -detail::maxFieldSize)
        except::throwMessage(detail::BadFieldSize(detail::maxFieldSize));
    return static_cast<int>(*whole);
}

// Settles "*" fields from the data; false when the data ran out first.
bool resolve(const Conversion& conversion, ArgumentCursor& data, detail::ResolvedConversion& resolved) {
    // Field by field: a whole-struct assignment makes a temporary the processor
    // stalls on reading back.
    resolved.flags = conversion.flags;
    resolved.width.reset();
    resolved.precision.reset();
    resolved.type = conversion.type;
    if (conversion.width.source == FieldSize::Source::FromData) {
        if (data.exhausted()) return false;
        const int width = fieldSizeFromData(data);
        resolved.flags.leftAlign = resolved.flags.leftAlign || width < 0;
        resolved.width = std::abs(width);
    } else if (conversion.width.source == FieldSize::Source::Written) {
        resolved.width = conversion.width.value;
    }
    if (conversion.precision.source == FieldSize::Source::FromData) {
        if (data.exhausted()) return false;
        const int precision = fieldSizeFromData(data);
        if (precision >= 0) resolved.precision = precision;
    } else if (conversion.precision.source == FieldSize::Source::Written) {
        resolved.precision = conversion.precision.value;
    }
    return !data.exhausted();
}

std::u16string literalTextOnly(const FormatItems& items) {
    std::u16string out;
    for (const auto& item : items)
        if (const auto* literal = std::get_if<std::u16string>(&item)) out += *literal;
    return out;
}

// Appends text to out, refusing a result longer than maxResultLength.
void append(std::u16string& out, std::u16string_view text) {
    if (text.size() > detail::maxResultLength - out.size())
        except::throwMessage(detail::ResultTooLong(static_cast<double>(detail::maxResultLength)));
    out += text;
}

// Applies the format again and again while data remains; the output ends at the
// first conversion that finds no data left.
std::u16string cycle(const FormatItems& items, ArgumentCursor& data) {
    std::u16string out;
    // Room for one pass with short conversions, so that a message is one allocation.
    constexpr std::size_t kRoomPerConversion = 16;
    std::size_t onePass = 0;
    for (const auto& item : items) {
        const auto* literal = std::get_if<std::u16string>(&item);
        onePass += literal != nullptr ? literal->size() : kRoomPerConversion;
    }
    out.reserve(onePass);
    for (;;) {
        for (const auto& item : items) {
            if (const auto* literal = std::get_if<std::u16string>(&item)) {
                append(out, *literal);
                continue;
            }
            const auto& conversion = std::get<Conversion>(item);
            detail::ResolvedConversion resolved;
            if (!resolve(conversion, data, resolved)) return out;
            append(out, detail::formatElement(resolved, conversion.type == 's' ? data.nextForText() : data.next()));
        }
        if (data.exhausted()) return out;
    }
}

// The items of the format. The last format parsed on the thread is kept with its
// items, so that a loop printing with one format parses it once; a format that
// does not parse is not kept. sprintf never runs inside itself, so the items stay
// as they are while the caller uses them.
const FormatItems& parsedFormat(std::u16string_view format) {
    struct Kept {
        std::u16string format;
        FormatItems items;
        bool valid = false;
    };
    thread_local Kept kept;
    // memcmp compares a wide text much faster than the char16_t traits do.
    if (kept.valid && format.size() == kept.format.size() &&
        std::memcmp(format.data(), kept.format.data(), format.size() * sizeof(char16_t)) == 0)
        return kept.items;
    FormatItems items = detail::parseFormat(format);
    kept.valid = false;
    kept.format.assign(format);
    kept.items = std::move(items);
    kept.valid = true;
    return kept.items;
}

}  // namespace

std::u16string sprintfText(std::int32_t count, const value::ValueArray* const* values) {
    if (count < 1 || values == nullptr) except::throwNotEnoughInputs();
    const value::ValueArray* format = values[0];
    if (format == nullptr || !format->isTextScalarTolerant()) except::throwMessage(detail::MissingStringArgument());
    const FormatItems& items = parsedFormat(format->textView());
    ArgumentCursor data({values + 1, static_cast<std::size_t>(count - 1)});
    // A format without conversions, or a call without data, prints the literal text once.
    return detail::hasConversion(items) && !data.exhausted() ? cycle(items, data) : literalTextOnly(items);
}

value::ValueArray fiSprintf(std::int32_t count, const value::ValueArray* const* values) {
    std::u16string out = sprintfText(count, values);
    if (values[0]->is(value::ClassId::String)) return value::ValueArray::string(std::move(out));
    const std::size_t length = out.size();
    return value::ValueArray::charArray(value::Dims{1, length}, std::move(out));
}

}  // namespace orrery::interp
