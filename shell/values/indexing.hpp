// Indexing with parentheses: which elements an index selects, reading them,
// and assigning or deleting them (growing the array where needed).
#pragma once

#include <orrery/value/value_array.hpp>

#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <optional>
#include <vector>

namespace orrery::shell::values {

/// One index argument: ':' or a value (numeric positions or a logical mask).
struct IndexArg {
    bool colon = false;
    value::ValueArray value;
};

/// The index arguments of one pair of parentheses; one or two, nearly always,
/// kept without a heap block.
using IndexArgs = boost::container::small_vector<IndexArg, 2>;

/// The elements an index selects (linear, 0-based) and the size of the result.
struct Selection {
    std::vector<std::size_t> positions;
    value::Dims dims;
};

/// The number `end` stands for in position k (0-based) of n index arguments.
std::size_t endValue(const value::Dims& dims, std::size_t k, std::size_t n);

/// The elements args select in an array of that size, all within it. An index
/// that is not a positive integer raises "ORRERY:shell:badIndex"; one past the
/// end "ORRERY:value:indexOutOfRange" (one argument) or
/// "ORRERY:shell:indexBeyondDimension" (several).
Selection selectElements(const value::Dims& dims, const IndexArgs& args);

/// As selectElements, but nothing (rather than an error) when an index lies
/// past the end: the place an assignment is about to make.
std::optional<Selection> selectExisting(const value::Dims& dims, const IndexArgs& args);

/// a(args), for a value of any class.
value::ValueArray indexValue(const value::ValueArray& a, const IndexArgs& args);

/// a(args) = b: b is a scalar or has one element per selected place. The array
/// grows to take indices past its end (a linear index grows vectors only); its
/// class follows the language's rules (an empty double takes b's class, a
/// logical array takes a number's class, an integer value makes the array
/// integer). b being the empty double [] deletes the selected elements. The
/// array changes in place (its data is copied only when shared) and is left
/// as it was when an error is raised.
void assignIndexed(value::ValueArray& a, const IndexArgs& args, const value::ValueArray& b);

}  // namespace orrery::shell::values
