// Walking the elements of sprintf's arguments.
#include "sprintf_arguments.hpp"

#include "sprintf_messages.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cmath>

namespace orrery::interp::detail {

using value::ClassId;
using value::ValueArray;

Number makeNumber(double value) {
    if (!std::isfinite(value) || value != std::trunc(value)) return {value, {}};
    // 2^63 and 2^64 are exact doubles; the ranges are half-open.
    if (value >= -9223372036854775808.0 && value < 9223372036854775808.0)
        return {value, static_cast<std::int64_t>(value)};
    if (value >= 0 && value < 18446744073709551616.0) return {value, static_cast<std::uint64_t>(value)};
    return {value, {}};
}

ArgumentCursor::ArgumentCursor(std::span<const ValueArray* const> arguments) : arguments_(arguments) {
    for (const ValueArray* argument : arguments_) {
        if (argument == nullptr) except::throwInvalidInput();
        const ClassId id = argument->classId();
        if (id == ClassId::Cell || id == ClassId::Struct || id == ClassId::Object)
            except::throwMessage(UnsupportedArgument(text::utf8ToUtf16(argument->className())));
    }
    skipEmptyArguments();
}

void ArgumentCursor::skipEmptyArguments() {
    while (argument_ < arguments_.size() && element_ >= current().numel()) {
        ++argument_;
        element_ = 0;
    }
}

void ArgumentCursor::advance(std::size_t elements) {
    element_ += elements;
    skipEmptyArguments();
}

Element ArgumentCursor::next() {
    const ValueArray& argument = current();
    const std::size_t i = element_;
    advance(1);
    switch (argument.classId()) {
        case ClassId::String: {
            const auto& element = argument.stringAt(i);
            return Text{element ? *element : std::u16string(u"<missing>")};
        }
        case ClassId::Int64: {
            const std::int64_t whole = argument.data<std::int64_t>()[i];
            return Number{static_cast<double>(whole), whole};
        }
        case ClassId::UInt64: {
            const std::uint64_t whole = argument.data<std::uint64_t>()[i];
            return Number{static_cast<double>(whole), whole};
        }
        default: return makeNumber(argument.realAt(i));
    }
}

Element ArgumentCursor::nextForText() {
    const ValueArray& argument = current();
    if (!argument.is(ClassId::Char)) return next();
    const std::size_t start = element_;
    advance(argument.numel() - start);
    return Text{std::u16string(argument.chars().substr(start))};
}

}  // namespace orrery::interp::detail
