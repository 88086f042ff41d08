// Built-ins of numbers that work element by element: the class of their result,
// and pairing the elements of two arrays, a scalar with every element of the other.
#pragma once

#include "shell/builtins/builtin_support.hpp"

namespace orrery::shell::builtins {

/// The class of an element-wise result of one array: numeric classes stay;
/// logical and char give double.
ClassId resultClass(const ValueArray& x);

/// The class of an element-wise result of two arrays: an integer class wins,
/// then single, then double.
ClassId combinedClass(const ValueArray& a, const ValueArray& b);

/// The size of an element-wise result of two arrays: the size they share, or
/// the other's size when one is a scalar; raises "ORRERY:host:sizeMismatch".
const value::Dims& pairedSize(const ValueArray& a, const ValueArray& b);

/// combine(x, y) of each pair of elements, in an array of combinedClass.
template <class Combine>
ValueArray pairElements(const ValueArray& a, const ValueArray& b, Combine combine) {
    ValueArray result = ValueArray::zeros(combinedClass(a, b), pairedSize(a, b));
    for (std::size_t i = 0; i < result.numel(); ++i)
        result.setRealAt(i, combine(a.realAt(a.isScalar() ? 0 : i), b.realAt(b.isScalar() ? 0 : i)));
    return result;
}

/// f(x) of each element, in an array of resultClass.
template <class Apply>
ValueArray mapElements(const ValueArray& x, Apply apply) {
    ValueArray result = ValueArray::zeros(resultClass(x), x.dims());
    for (std::size_t i = 0; i < x.numel(); ++i) result.setRealAt(i, apply(x.realAt(i)));
    return result;
}

}  // namespace orrery::shell::builtins
