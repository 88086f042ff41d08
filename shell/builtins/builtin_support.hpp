// What the host's built-in groups share: the {name, function} table entry and
// the reading of common kinds of arguments.
#pragma once

#include <orrery/except/argument_errors.hpp>
#include <orrery/value/value_array.hpp>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orrery::shell::builtins {

// Names every group uses.
using except::checkArgumentCounts;
using value::ClassId;
using value::makeValue;
using value::ValueArray;
using value::ValueArrayPtr;

/// The largest count: a built-in that takes any number of inputs.
inline constexpr std::int32_t anyCount = std::numeric_limits<std::int32_t>::max();

/// One row of a group's table: the language name and the built-in behind it.
struct BuiltinEntry {
    std::string_view name;
    value::BuiltinFunction function;
};

/// The arguments of one call, as the built-in signature passes them.
using Arguments = std::span<const value::ValueArray* const>;

/// Views the inputs of a call.
inline Arguments argumentsOf(std::int32_t nrhs, const value::ValueArray* const* prhs) {
    return {prhs, static_cast<std::size_t>(nrhs)};
}

/// The text of a text scalar (tolerant: the 0-by-0 char array is ""); raises
/// "ORRERY:host:notText" naming the function and the 1-based position otherwise.
std::u16string textArgument(const value::ValueArray& argument, std::string_view function, std::size_t position);

/// textArgument as UTF-8.
std::string textArgumentUtf8(const value::ValueArray& argument, std::string_view function, std::size_t position);

/// A dimension argument: a positive integer scalar, returned 0-based; raises
/// "ORRERY:host:badDimension" otherwise.
std::size_t dimensionArgument(const value::ValueArray& argument, std::string_view function);

/// The size given by size arguments: none is 1-by-1, one scalar n is n-by-n, one
/// row gives the sizes, several scalars give one size each. Negative sizes count
/// as 0. Anything else raises "ORRERY:host:badSize".
value::Dims sizeArguments(Arguments arguments, std::string_view function);

/// When the last argument is text, takes it off the arguments and returns it.
std::optional<std::string> takeTrailingText(Arguments& arguments);

/// Raises "ORRERY:host:notNumeric" unless the value is numeric, logical or char.
void requireNumeric(const value::ValueArray& argument, std::string_view function);

/// Writes UTF-8 text to the console's output or error stream.
void writeOutput(std::string_view text);
void writeErrorOutput(std::string_view text);

}  // namespace orrery::shell::builtins
