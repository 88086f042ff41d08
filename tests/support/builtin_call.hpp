// Calling built-ins the way the interpreter does, and building their inputs.
#pragma once

#include <orrery/except/qexception.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/value/value_array.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orrery::testing {

// The value names every built-in test uses; `using namespace orrery::testing`
// brings them with the helpers below.
using value::ClassId;
using value::Dims;
using value::ValueArray;

/// Owns a list of input values and the pointer array a built-in borrows.
class InputList {
public:
    InputList(std::initializer_list<value::ValueArray> values) : values_(values) { point(); }
    explicit InputList(std::vector<value::ValueArray> values) : values_(std::move(values)) { point(); }
    InputList(const InputList&) = delete;
    InputList& operator=(const InputList&) = delete;

    std::int32_t count() const { return static_cast<std::int32_t>(values_.size()); }
    const value::ValueArray* const* data() const { return pointers_.data(); }

private:
    void point() {
        for (const auto& v : values_) pointers_.push_back(&v);
    }
    std::vector<value::ValueArray> values_;
    std::vector<const value::ValueArray*> pointers_;
};

/// Calls the built-in with nlhs requested outputs and returns the slots: at least
/// one, as the interpreter provides one for the answer value. A slot past those
/// must stay untouched.
inline std::vector<value::ValueArrayPtr> callBuiltin(value::BuiltinFunction builtin, std::int32_t nlhs,
                                                     std::initializer_list<value::ValueArray> inputs) {
    const InputList list(inputs);
    std::vector<value::ValueArrayPtr> outputs(static_cast<std::size_t>(std::max(nlhs, std::int32_t{1})) + 1);
    builtin(nlhs, outputs.data(), list.count(), list.data());
    EXPECT_EQ(outputs.back(), nullptr) << "the built-in filled a slot past the requested outputs";
    outputs.pop_back();
    return outputs;
}

/// Calls the registered function name with the inputs, asking for nlhs outputs;
/// returns the slots (an unfilled one is a 0-by-0 double), at least one.
inline std::vector<value::ValueArray> call(std::string_view name, std::int32_t nlhs,
                                           std::vector<value::ValueArray> inputs) {
    const InputList list(std::move(inputs));
    std::vector<value::ValueArrayPtr> slots(static_cast<std::size_t>(std::max(nlhs, std::int32_t{1})));
    interp::callFunction(name, nlhs, slots.data(), list.count(), list.data());
    std::vector<value::ValueArray> outputs;
    for (auto& slot : slots) outputs.push_back(slot ? *slot : value::ValueArray());
    return outputs;
}

/// The first output of name(inputs...).
inline value::ValueArray call1(std::string_view name, std::vector<value::ValueArray> inputs = {}) {
    return call(name, 1, std::move(inputs))[0];
}

/// Elements of a numeric, logical or char array as doubles, column-major.
inline std::vector<double> numbers(const value::ValueArray& v) {
    std::vector<double> values;
    for (std::size_t i = 0; i < v.numel(); ++i) values.push_back(v.realAt(i));
    return values;
}

/// A 1-by-N cell of the elements.
inline value::ValueArray cellRow(std::initializer_list<value::ValueArray> elements) {
    auto cell = value::ValueArray::cell(value::Dims{1, elements.size()});
    std::size_t i = 0;
    for (const auto& e : elements) cell.setCellAt(i++, e);
    return cell;
}

/// A char row from UTF-8 text ("" gives the 0-by-0 char array).
inline value::ValueArray chars(std::string_view utf8) { return value::ValueArray::charsFromUtf8(utf8); }

/// A 1-by-N double row.
inline value::ValueArray row(std::vector<double> values) {
    const std::size_t n = values.size();
    return value::ValueArray::doubles(value::Dims{1, n}, std::move(values));
}

/// A 1-by-1 structure with the fields in order.
inline value::ValueArray structOf(std::initializer_list<std::pair<std::string, value::ValueArray>> fields) {
    auto result = value::ValueArray::structArray(value::Dims{1, 1});
    for (const auto& [name, v] : fields) result.setField(0, name, v);
    return result;
}

/// One stack frame's values.
struct Frame {
    value::ValueArray file;
    value::ValueArray name;
    value::ValueArray line;
};

/// An N-by-1 stack structure from frames.
inline value::ValueArray stackOf(std::initializer_list<Frame> frames) {
    auto stack = value::ValueArray::stackStructure(frames.size());
    std::size_t i = 0;
    for (const auto& frame : frames) {
        stack.setField(i, "file", frame.file);
        stack.setField(i, "name", frame.name);
        stack.setField(i++, "line", frame.line);
    }
    return stack;
}

/// Runs statement, which must raise a user error, and returns that error.
template <class Statement>
except::QException userErrorOf(Statement&& statement) {
    try {
        statement();
    } catch (const except::QException& error) {
        return error;
    }
    ADD_FAILURE() << "expected a user error, nothing raised";
    return except::QException("", u"", value::ValueArray(), "");
}

}  // namespace orrery::testing
