// Calls host built-ins through the function table, and builds input values.
#pragma once

#include "shell/builtins/host_builtins.hpp"

#include <orrery/interp/function_table.hpp>
#include <orrery/value/value_array.hpp>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>
#include <vector>

namespace builtin_test {

using orrery::value::ClassId;
using orrery::value::Dims;
using orrery::value::ValueArray;

/// Calls name with the inputs, asking for nlhs outputs; returns the slots that
/// were filled (an unfilled slot is a 0-by-0 double), at least one.
inline std::vector<ValueArray> call(std::string_view name, int nlhs, const std::vector<ValueArray>& inputs) {
    [[maybe_unused]] static const bool registered = (orrery::shell::registerHostBuiltins(), true);
    std::vector<const ValueArray*> pointers;
    for (const ValueArray& input : inputs) pointers.push_back(&input);
    std::vector<orrery::value::ValueArrayPtr> slots(static_cast<std::size_t>(nlhs > 0 ? nlhs : 1));
    orrery::interp::callFunction(name, nlhs, slots.data(), static_cast<std::int32_t>(pointers.size()), pointers.data());
    std::vector<ValueArray> outputs;
    for (auto& slot : slots) outputs.push_back(slot ? *slot : ValueArray());
    return outputs;
}

/// The first output of name(inputs...).
inline ValueArray call1(std::string_view name, const std::vector<ValueArray>& inputs = {}) {
    return call(name, 1, inputs)[0];
}

inline ValueArray num(double x) { return ValueArray::scalar(x); }
inline ValueArray matrix(std::size_t rows, std::size_t cols, std::vector<double> columnMajor) {
    return ValueArray::doubles(Dims{rows, cols}, std::move(columnMajor));
}
inline ValueArray row(std::vector<double> values) { return matrix(1, values.size(), values); }
inline ValueArray txt(std::u16string_view text) { return ValueArray::chars(text); }
inline ValueArray str(std::u16string_view text) { return ValueArray::string(text); }
inline ValueArray cellRow(std::initializer_list<ValueArray> elements) {
    ValueArray cell = ValueArray::cell(Dims{1, elements.size()});
    std::size_t i = 0;
    for (const ValueArray& e : elements) cell.setCellAt(i++, e);
    return cell;
}

/// Elements of a numeric, logical or char array as doubles, column-major.
inline std::vector<double> numbers(const ValueArray& v) {
    std::vector<double> values;
    for (std::size_t i = 0; i < v.numel(); ++i) values.push_back(v.realAt(i));
    return values;
}

inline bool truth(const ValueArray& v) { return v.is(ClassId::Logical) && v.isScalar() && v.logicalAt(0); }

}  // namespace builtin_test
