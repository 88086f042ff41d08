// Helpers of the Warning class's tests: records, Warning arrays of any size made
// from them, and calls through the class system's dispatch.
#pragma once

#include "diagnostic/classes/class_registration.hpp"
#include "diagnostic/classes/warning_objects.hpp"

#include <orrery/ocos/dispatch.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace warning_test {

using orrery::lang::diagnostic::Warning;
using orrery::value::Dims;
using orrery::value::ValueArray;
using orrery::value::ValueArrayPtr;

/// A record told apart by its time and identifier.
inline Warning record(double time, std::string identifier = "demo:w") {
    Warning w;
    w.setTime(time);
    w.setIdentifier(std::move(identifier));
    w.setMessage(u"message");
    return w;
}

/// A Warning array of the size holding the records in linear order.
inline ValueArray warnings(Dims dims, const std::vector<Warning>& records) {
    orrery::lang::diagnostic::registerWarningClassForModule();
    ValueArray array = orrery::lang::diagnostic::newWarningArray(std::move(dims));
    for (std::size_t i = 0; i < records.size(); ++i) orrery::lang::diagnostic::setWarningAt(array, i, records[i]);
    return array;
}

/// A Warning array whose records have the times given, in linear order.
inline ValueArray warningsAt(Dims dims, const std::vector<double>& times) {
    std::vector<Warning> records;
    for (double t : times) records.push_back(record(t));
    return warnings(std::move(dims), records);
}

/// The times of the records of a Warning array, in linear order.
inline std::vector<double> timesOf(const ValueArray& array) {
    std::vector<double> times;
    for (std::size_t i = 0; i < array.numel(); ++i)
        times.push_back(orrery::lang::diagnostic::warningRecordAt(array, i).getTime());
    return times;
}

/// The method or operator of that name called as the language calls it; returns nlhs outputs.
inline std::vector<ValueArray> callMethod(std::string_view name, int nlhs, std::vector<ValueArray> inputs) {
    std::vector<const ValueArray*> pointers;
    for (const auto& v : inputs) pointers.push_back(&v);
    std::vector<ValueArrayPtr> slots(static_cast<std::size_t>(std::max(nlhs, 1)));
    EXPECT_TRUE(orrery::ocos::callMethodIfDefined(name, nlhs, slots.data(), static_cast<std::int32_t>(pointers.size()),
                                                  pointers.data()));
    std::vector<ValueArray> outputs;
    for (auto& slot : slots) outputs.push_back(slot ? *slot : ValueArray());
    return outputs;
}

/// The elements of a logical array, in linear order.
inline std::vector<bool> logicalsOf(const ValueArray& array) {
    std::vector<bool> flags;
    for (std::size_t i = 0; i < array.numel(); ++i) flags.push_back(array.logicalAt(i));
    return flags;
}

}  // namespace warning_test
