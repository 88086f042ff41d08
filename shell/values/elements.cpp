// Blank arrays, element copies and class conversion.
#include "shell/values/elements.hpp"

#include "shell/display/number_format.hpp"
#include "shell/values/value_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace orrery::shell::values {
namespace {

using value::ClassId;
using value::Dims;
using value::ValueArray;

// The element limit in force (process-wide, like the function table).
std::size_t limitInForce = kMaxElements;

template <class T>
void copyTyped(ValueArray& dst, std::size_t to, const ValueArray& src, std::size_t from) {
    dst.mutableData<T>()[to] = src.data<T>()[from];
}

void copySameNumeric(ValueArray& dst, std::size_t to, const ValueArray& src, std::size_t from) {
    switch (dst.classId()) {
        case ClassId::Double: return copyTyped<double>(dst, to, src, from);
        case ClassId::Int64: return copyTyped<std::int64_t>(dst, to, src, from);
        case ClassId::UInt64: return copyTyped<std::uint64_t>(dst, to, src, from);
        default: dst.setRealAt(to, src.realAt(from));
    }
}

void copyStructElement(ValueArray& dst, std::size_t to, const ValueArray& src, std::size_t from) {
    for (const auto& name : src.fieldNames()) {
        if (const ValueArray* field = src.field(from, name)) {
            dst.setField(to, name, *field);
        } else {
            dst.addField(name);
        }
    }
}

[[noreturn]] void noConversion(const ValueArray& v, ClassId target) {
    except::throwMessage(
        ConcatenationClass(text::asciiToUtf16(v.className()), text::asciiToUtf16(value::className(target))));
}

std::u16string numberText(const ValueArray& v, std::size_t i) {
    if (v.is(ClassId::Logical)) return v.logicalAt(i) ? u"true" : u"false";
    const ValueArray one = ValueArray::numericScalar(v.is(ClassId::Char) ? ClassId::Double : v.classId(), v.realAt(i));
    return text::utf8ToUtf16(render::formatAll(one)[0]);
}

ValueArray toStrings(const ValueArray& v) {
    if (v.is(ClassId::Char)) {
        const std::size_t rows = v.dims().rows();
        if (v.isEmpty()) return ValueArray::string(u"");
        std::vector<std::optional<std::u16string>> elements;
        const std::u16string_view units = v.chars();
        const std::size_t columns = units.size() / rows;
        for (std::size_t r = 0; r < rows; ++r) {
            std::u16string row;
            for (std::size_t c = 0; c < columns; ++c) row += units[c * rows + r];
            elements.emplace_back(std::move(row));
        }
        return ValueArray::strings(Dims{rows, 1}, std::move(elements));
    }
    if (!isNumberLike(v)) noConversion(v, ClassId::String);
    std::vector<std::optional<std::u16string>> elements;
    for (std::size_t i = 0; i < v.numel(); ++i) elements.emplace_back(numberText(v, i));
    return ValueArray::strings(v.dims(), std::move(elements));
}

}  // namespace

std::size_t elementLimit() noexcept { return limitInForce; }

void setElementLimit(std::size_t newLimit) noexcept { limitInForce = std::min(newLimit, kMaxElements); }

void checkElementCount(double count) {
    if (count > static_cast<double>(limitInForce)) except::throwMessage(ArrayTooLarge(count, limitInForce));
}

std::optional<std::size_t> wholeCount(double x) {
    if (!(x >= 0) || std::isinf(x)) return std::nullopt;  // NaN, negatives, infinities
    if (x <= static_cast<double>(limitInForce)) {
        // within the limit the conversion is exact for whole numbers: no floor() call
        const auto count = static_cast<std::size_t>(x);
        return static_cast<double>(count) == x ? std::optional(count) : std::nullopt;
    }
    if (x != std::floor(x)) return std::nullopt;
    char buffer[64];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, x);
    except::throwMessage(SizeTooLarge(text::asciiToUtf16(std::string_view(buffer, written.ptr)), limitInForce));
}

bool isNumberLike(const ValueArray& v) { return v.isNumeric() || v.is(ClassId::Logical) || v.is(ClassId::Char); }

ValueArray blankLike(const ValueArray& proto, Dims dims) {
    checkElementCount(static_cast<double>(dims.numel()));
    switch (proto.classId()) {
        case ClassId::String: {
            std::vector<std::optional<std::u16string>> missing(dims.numel());
            return ValueArray::strings(std::move(dims), std::move(missing));
        }
        case ClassId::Struct: return ValueArray::structArray(std::move(dims), proto.fieldNames());
        case ClassId::Object: return ValueArray::objectArray(proto.classInfo(), std::move(dims));
        default: return ValueArray::zeros(proto.classId(), std::move(dims));
    }
}

void copyElement(ValueArray& dst, std::size_t to, const ValueArray& src, std::size_t from) {
    if (dst.classId() == src.classId() && dst.isNumeric()) return copySameNumeric(dst, to, src, from);
    switch (dst.classId()) {
        case ClassId::String: return dst.setStringAt(to, src.stringAt(from));
        case ClassId::Cell: return dst.setCellAt(to, src.cellAt(from));
        case ClassId::Struct: return copyStructElement(dst, to, src, from);
        case ClassId::Object: return dst.setObjectAt(to, src.objectAt(from));
        default: dst.setRealAt(to, src.realAt(from));
    }
}

ValueArray columnOf(const ValueArray& array, std::size_t c) {
    const std::size_t rows = array.dims().rows();
    if (rows == 1 && array.is(ClassId::Double)) return ValueArray::scalar(array.realAt(c));
    ValueArray column = blankLike(array, Dims{rows, 1});
    for (std::size_t r = 0; r < rows; ++r) copyElement(column, r, array, c * rows + r);
    return column;
}

ValueArray convertTo(const ValueArray& v, ClassId target) {
    if (v.classId() == target) return v;
    if (target == ClassId::Cell) {
        ValueArray cell = ValueArray::cell(Dims{1, 1});
        cell.setCellAt(0, v);
        return cell;
    }
    if (target == ClassId::String) return toStrings(v);
    const bool numberTarget = value::isNumericClass(target) || target == ClassId::Logical || target == ClassId::Char;
    if (!numberTarget || !isNumberLike(v)) noConversion(v, target);
    ValueArray result = ValueArray::zeros(target, v.dims());
    for (std::size_t i = 0; i < v.numel(); ++i) result.setRealAt(i, v.realAt(i));
    return result;
}

ClassId joinedNumberClass(ClassId a, ClassId b) {
    if (value::isIntegerClass(a)) return a;
    if (value::isIntegerClass(b)) return b;
    if (a == ClassId::Single || b == ClassId::Single) return ClassId::Single;
    if (a == ClassId::Char && b == ClassId::Char) return ClassId::Char;
    if (a == ClassId::Char || b == ClassId::Char) return ClassId::Char;
    if (a == ClassId::Logical && b == ClassId::Logical) return ClassId::Logical;
    return ClassId::Double;
}

std::vector<std::size_t> subscriptsOf(std::size_t i, const Dims& dims) {
    std::vector<std::size_t> subscripts(dims.count());
    for (std::size_t d = 0; d < dims.count(); ++d) {
        const std::size_t size = dims[d] == 0 ? 1 : dims[d];
        subscripts[d] = i % size;
        i /= size;
    }
    return subscripts;
}

std::size_t linearIndexOf(const std::vector<std::size_t>& subscripts, const Dims& dims) {
    std::size_t index = 0;
    std::size_t stride = 1;
    for (std::size_t d = 0; d < subscripts.size(); ++d) {
        index += subscripts[d] * stride;
        stride *= dims[d];
    }
    return index;
}

}  // namespace orrery::shell::values
