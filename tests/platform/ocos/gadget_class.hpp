// A small class described through property templates, shared by the class
// system's tests: one property of every declared type and one method.
#pragma once

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/prop_template.hpp>
#include <orrery/value/value_array.hpp>

#include <functional>
#include <memory>
#include <string>

namespace ocos_test {

using orrery::value::ValueArray;

inline constexpr const char* gadgetClassName = "test.ocos.Gadget";

/// Every setter counts its call in writes, so tests can tell whether one ran.
struct Gadget : orrery::ocos::COSObject {
    std::string label;
    std::u16string title;
    ValueArray items = ValueArray::cell(orrery::value::Dims{0, 0});
    ValueArray record = ValueArray::structArray(orrery::value::Dims{1, 1});
    ValueArray numbers;
    double weight = 0;
    ValueArray flags = ValueArray::logicalScalar(false);
    bool active = false;
    ValueArray peer;
    int writes = 0;

    std::shared_ptr<orrery::ocos::COSObject> clone() const override { return std::make_shared<Gadget>(*this); }
};

/// A method that runs a callable with the built-in signature (by default one that does nothing).
using MethodBody =
    std::function<void(std::int32_t, orrery::value::ValueArrayPtr*, std::int32_t, const ValueArray* const*)>;
std::shared_ptr<const orrery::ocos::COSMethodInfo> lambdaMethod(std::string name,
                                                                orrery::ocos::COSMethodSignature signature,
                                                                MethodBody body = {});

/// The class "test.ocos.Gadget" with the method heavier(a, b): whether a's weight
/// is above b's. Registered in namespace test.ocos on first use.
std::shared_ptr<const orrery::ocos::COSClassInfo> gadgetClass();

/// A 1-by-1 Gadget array whose instance has the label.
ValueArray makeGadget(const std::string& label);

/// The instance of element i, for inspecting fields the properties do not show.
const Gadget& gadgetAt(const ValueArray& gadgets, std::size_t i = 0);

}  // namespace ocos_test
