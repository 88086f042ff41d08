// Reading of common arguments of the host's built-ins, and console output.
#include "shell/builtins/builtin_support.hpp"

#include "shell/builtins/builtin_messages.hpp"
#include "shell/values/elements.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

#include <cmath>
#include <vector>

namespace orrery::shell::builtins {
namespace {

std::u16string wide(std::string_view ascii) { return text::asciiToUtf16(ascii); }

bool isIntegerValued(double x) { return std::isfinite(x) && x == std::floor(x); }

// A size entry: an integer (negative counts as 0); NaN, Inf and fractions fail.
std::size_t sizeEntry(double x, std::string_view function) {
    if (isIntegerValued(x) && x < 0) return 0;
    const auto size = values::wholeCount(x);
    if (!size) except::throwMessage(messages::BadSize(wide(function)));
    return *size;
}

// The sizes as an array size, refused when the array would be too large.
value::Dims arraySize(const std::vector<std::size_t>& sizes) {
    double total = 1;
    for (std::size_t size : sizes) total *= static_cast<double>(size);
    values::checkElementCount(total);
    return value::Dims(sizes);
}

bool isSizeValue(const ValueArray& v) {
    return (v.isNumeric() || v.is(ClassId::Logical) || v.is(ClassId::Char)) && v.ndims() == 2;
}

}  // namespace

std::u16string textArgument(const ValueArray& argument, std::string_view function, std::size_t position) {
    if (!argument.isTextScalarTolerant()) except::throwMessage(messages::NotText(wide(function), position));
    return argument.text();
}

std::string textArgumentUtf8(const ValueArray& argument, std::string_view function, std::size_t position) {
    return text::utf16ToUtf8(textArgument(argument, function, position));
}

std::size_t dimensionArgument(const ValueArray& argument, std::string_view function) {
    if (!argument.isScalar() || !(argument.isNumeric() || argument.is(ClassId::Logical)))
        except::throwMessage(messages::BadDimension(wide(function)));
    const auto dim = values::wholeCount(argument.realAt(0));
    if (!dim || *dim < 1) except::throwMessage(messages::BadDimension(wide(function)));
    return *dim - 1;
}

value::Dims sizeArguments(Arguments arguments, std::string_view function) {
    if (arguments.empty()) return value::Dims{1, 1};
    for (const ValueArray* a : arguments)
        if (!isSizeValue(*a)) except::throwMessage(messages::BadSize(wide(function)));
    if (arguments.size() == 1) {
        const ValueArray& a = *arguments[0];
        if (a.isScalar()) {
            const std::size_t n = sizeEntry(a.realAt(0), function);
            return arraySize({n, n});
        }
        if (a.isEmpty()) return value::Dims{0, 0};
        if (a.dims().rows() != 1) except::throwMessage(messages::BadSize(wide(function)));
        std::vector<std::size_t> sizes;
        for (std::size_t i = 0; i < a.numel(); ++i) sizes.push_back(sizeEntry(a.realAt(i), function));
        return arraySize(sizes);
    }
    std::vector<std::size_t> sizes;
    for (const ValueArray* a : arguments) {
        if (!a->isScalar()) except::throwMessage(messages::BadSize(wide(function)));
        sizes.push_back(sizeEntry(a->realAt(0), function));
    }
    return arraySize(sizes);
}

std::optional<std::string> takeTrailingText(Arguments& arguments) {
    if (arguments.empty() || !arguments.back()->isTextScalar()) return std::nullopt;
    std::string text = arguments.back()->textUtf8();
    arguments = arguments.first(arguments.size() - 1);
    return text;
}

void requireNumeric(const ValueArray& argument, std::string_view function) {
    if (argument.isNumeric() || argument.is(ClassId::Logical) || argument.is(ClassId::Char)) return;
    except::throwMessage(messages::NotNumeric(wide(function), text::utf8ToUtf16(argument.className())));
}

void writeOutput(std::string_view text) { console::consoleWrite(console::ConsoleStream::Output, text); }

void writeErrorOutput(std::string_view text) { console::consoleWrite(console::ConsoleStream::Error, text); }

}  // namespace orrery::shell::builtins
