// Short notation for the tests of shell/values: small arrays built in one
// expression, index arguments, and any value described as one line of text
// ("double 1x3: 1 2 3"), so that a table row holds input and expectation.
#pragma once

#include "shell/values/indexing.hpp"

#include <orrery/text/text.hpp>
#include <orrery/value/value_array.hpp>

#include <cstdio>
#include <initializer_list>
#include <string>
#include <vector>

namespace orrery::testing {

/// An array of a number-like class holding the numbers, column-major.
inline value::ValueArray numbers(value::ClassId id, value::Dims dims, std::initializer_list<double> elements) {
    value::ValueArray v = value::ValueArray::zeros(id, std::move(dims));
    std::size_t i = 0;
    for (double x : elements) v.setRealAt(i++, x);
    return v;
}

/// A double array (column-major), a double row, and a double column.
inline value::ValueArray doubles(value::Dims dims, std::initializer_list<double> elements) {
    return numbers(value::ClassId::Double, std::move(dims), elements);
}
inline value::ValueArray row(std::initializer_list<double> elements) {
    return doubles(value::Dims{1, elements.size()}, elements);
}
inline value::ValueArray column(std::initializer_list<double> elements) {
    return doubles(value::Dims{elements.size(), 1}, elements);
}

/// Index arguments: positions (1-based, as a row), ':' and a logical mask.
inline shell::values::IndexArg at(std::initializer_list<double> positions) { return {false, row(positions)}; }
inline shell::values::IndexArg all() { return {true, value::ValueArray()}; }
inline shell::values::IndexArg mask(std::initializer_list<double> bits) {
    return {false, numbers(value::ClassId::Logical, value::Dims{1, bits.size()}, bits)};
}

/// "class RxC: elements": numbers with %g, chars quoted, strings in double
/// quotes (<missing>), cells as {element}, structs by their field names.
inline std::string describe(const value::ValueArray& v) {
    using value::ClassId;
    std::string out = v.className() + " " + v.dims().text() + ":";
    if (v.is(ClassId::Char)) return out + " '" + text::utf16ToUtf8(std::u16string(v.chars())) + "'";
    if (v.is(ClassId::Struct)) {
        for (const auto& name : v.fieldNames()) out += " ." + name;
        return out;
    }
    for (std::size_t i = 0; i < v.numel(); ++i) {
        if (v.is(ClassId::String)) {
            const auto& s = v.stringAt(i);
            out += s ? " \"" + text::utf16ToUtf8(*s) + "\"" : " <missing>";
        } else if (v.is(ClassId::Cell)) {
            out += " {" + describe(v.cellAt(i)) + "}";
        } else {
            char number[32];
            std::snprintf(number, sizeof number, " %g", v.realAt(i));
            out += number;
        }
    }
    return out;
}

}  // namespace orrery::testing
