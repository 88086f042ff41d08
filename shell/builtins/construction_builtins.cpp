// Built-ins that make arrays and convert between classes: zeros, ones, cell,
// double, single, int8..uint64, logical, Inf, NaN, pi, true, false.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/except/argument_errors.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/number_text.hpp>
#include <orrery/text/text.hpp>

#include <cmath>
#include <limits>
#include <numbers>

namespace orrery::shell::builtins {
namespace {

ClassId numericClassNamed(std::string_view name, std::string_view function) {
    for (int id = 0; id <= static_cast<int>(ClassId::UInt64); ++id)
        if (value::className(static_cast<ClassId>(id)) == name) return static_cast<ClassId>(id);
    except::throwMessage(messages::UnknownClass(text::utf8ToUtf16(name), text::asciiToUtf16(function)));
}

ValueArray filled(ClassId id, value::Dims dims, double fill) {
    if (id == ClassId::Double) {
        const std::size_t n = dims.numel();
        return ValueArray::doubles(std::move(dims), std::vector<double>(n, fill));
    }
    ValueArray result = ValueArray::zeros(id, std::move(dims));
    if (fill != 0)
        for (std::size_t i = 0; i < result.numel(); ++i) result.setRealAt(i, fill);
    return result;
}

// f(sizes..., 'class'): a filled array of any numeric class (or of allowed ones).
ValueArray filledFromArguments(std::string_view function, std::int32_t nrhs, const ValueArray* const* prhs, double fill,
                               bool floatingOnly) {
    Arguments arguments = argumentsOf(nrhs, prhs);
    ClassId id = ClassId::Double;
    if (const auto name = takeTrailingText(arguments)) {
        id = numericClassNamed(*name, function);
        if (floatingOnly && id != ClassId::Double && id != ClassId::Single)
            except::throwMessage(messages::UnknownClass(text::utf8ToUtf16(*name), text::asciiToUtf16(function)));
    }
    return filled(id, sizeArguments(arguments, function), fill);
}

// A string element as a number: the whole text must read as one; else NaN.
double parseNumber(const std::optional<std::u16string>& element) {
    if (!element) return std::numeric_limits<double>::quiet_NaN();
    return text::parseDouble(text::utf16ToUtf8(*element)).value_or(std::numeric_limits<double>::quiet_NaN());
}

[[noreturn]] void cannotConvert(const ValueArray& from, ClassId to) {
    except::throwMessage(
        messages::CannotConvert(text::utf8ToUtf16(from.className()), text::asciiToUtf16(value::className(to))));
}

ValueArray convertNumbers(const ValueArray& from, ClassId to) {
    const bool isText = from.is(ClassId::String);
    if (isText && to != ClassId::Double && to != ClassId::Single) cannotConvert(from, to);
    if (!isText && !from.isNumeric() && !from.is(ClassId::Logical) && !from.is(ClassId::Char)) cannotConvert(from, to);
    if (from.is(to)) return from;
    ValueArray result = ValueArray::zeros(to, from.dims());
    for (std::size_t i = 0; i < from.numel(); ++i)
        result.setRealAt(i, isText ? parseNumber(from.stringAt(i)) : from.realAt(i));
    return result;
}

template <ClassId To>
void bnConvert(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    plhs[0] = makeValue(convertNumbers(*prhs[0], To));
}

void bnLogical(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const ValueArray& from = *prhs[0];
    if (!from.isNumeric() && !from.is(ClassId::Logical)) cannotConvert(from, ClassId::Logical);
    ValueArray result = ValueArray::zeros(ClassId::Logical, from.dims());
    for (std::size_t i = 0; i < from.numel(); ++i) {
        const double x = from.realAt(i);
        if (std::isnan(x)) except::throwMessage(except::host::NotLogicalConvertible());
        result.setLogicalAt(i, x != 0);
    }
    plhs[0] = makeValue(std::move(result));
}

void bnZeros(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    plhs[0] = makeValue(filledFromArguments("zeros", nrhs, prhs, 0, false));
}

void bnOnes(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    plhs[0] = makeValue(filledFromArguments("ones", nrhs, prhs, 1, false));
}

void bnInf(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    plhs[0] = makeValue(filledFromArguments("Inf", nrhs, prhs, std::numeric_limits<double>::infinity(), true));
}

void bnNaN(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    plhs[0] = makeValue(filledFromArguments("NaN", nrhs, prhs, std::numeric_limits<double>::quiet_NaN(), true));
}

void bnPi(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    plhs[0] = makeValue(filledFromArguments("pi", nrhs, prhs, std::numbers::pi, true));
}

template <bool Value>
void bnTruth(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    const value::Dims dims = sizeArguments(argumentsOf(nrhs, prhs), Value ? "true" : "false");
    ValueArray result = ValueArray::zeros(ClassId::Logical, dims);
    for (std::size_t i = 0; Value && i < result.numel(); ++i) result.setLogicalAt(i, true);
    plhs[0] = makeValue(std::move(result));
}

void bnCell(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 0, anyCount);
    plhs[0] = makeValue(ValueArray::cell(sizeArguments(argumentsOf(nrhs, prhs), "cell")));
}

constexpr BuiltinEntry table[] = {
    {"zeros", bnZeros},
    {"ones", bnOnes},
    {"cell", bnCell},
    {"Inf", bnInf},
    {"inf", bnInf},
    {"NaN", bnNaN},
    {"nan", bnNaN},
    {"pi", bnPi},
    {"true", bnTruth<true>},
    {"false", bnTruth<false>},
    {"logical", bnLogical},
    {"double", bnConvert<ClassId::Double>},
    {"single", bnConvert<ClassId::Single>},
    {"int8", bnConvert<ClassId::Int8>},
    {"uint8", bnConvert<ClassId::UInt8>},
    {"int16", bnConvert<ClassId::Int16>},
    {"uint16", bnConvert<ClassId::UInt16>},
    {"int32", bnConvert<ClassId::Int32>},
    {"uint32", bnConvert<ClassId::UInt32>},
    {"int64", bnConvert<ClassId::Int64>},
    {"uint64", bnConvert<ClassId::UInt64>},
};

}  // namespace

std::span<const BuiltinEntry> constructionBuiltins() { return table; }

}  // namespace orrery::shell::builtins
