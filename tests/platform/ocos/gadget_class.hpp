// A small class shared by the class system's tests: "test.ocos.Gadget", with one
// property of every declared type and the method heavier(a, b).
#pragma once

#include <orrery/ocos/dispatch.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/prop_template.hpp>
#include <orrery/ocos/registry.hpp>

#include <functional>
#include <vector>

namespace ocos_test {

using namespace orrery::ocos;
using orrery::value::Dims;
using orrery::value::makeValue;
using orrery::value::ValueArray;
using orrery::value::ValueArrayPtr;

/// Every setter counts its call in writes, so tests can tell whether one ran.
struct Gadget : COSObject {
    std::string label;
    std::u16string title;
    ValueArray items, record, numbers, flags, peer;
    double weight = 0;
    bool active = false;
    int writes = 0;
    std::shared_ptr<COSObject> clone() const override { return std::make_shared<Gadget>(*this); }
};

using MethodBody = std::function<void(std::int32_t, ValueArrayPtr*, std::int32_t, const ValueArray* const*)>;

/// A method that runs body, or does nothing without one.
class LambdaMethod final : public COSMethodInfo {
public:
    LambdaMethod(std::string name, COSMethodSignature signature, MethodBody body)
        : COSMethodInfo(std::move(name), std::move(signature)), body_(std::move(body)) {}
    void invoke(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs,
                const ValueArray* const* prhs) const override {
        if (body_) body_(nlhs, plhs, nrhs, prhs);
    }

private:
    MethodBody body_;
};

inline std::shared_ptr<const COSMethodInfo> lambdaMethod(std::string name, COSMethodSignature sig, MethodBody fn = {}) {
    return std::make_shared<LambdaMethod>(std::move(name), std::move(sig), std::move(fn));
}

/// The instance of element i, for inspecting fields the properties do not show.
inline const Gadget& gadgetAt(const ValueArray& gadgets, std::size_t i = 0) {
    return instanceAs<Gadget>(*validInstanceAt(gadgets, i));
}

/// The class, registered in namespace test.ocos on first use.
inline std::shared_ptr<const COSClassInfo> gadgetClass() {
    static const auto info = [] {
        auto made = std::make_shared<COSClassInfo>("test.ocos.Gadget");
        const auto add = [&](const char* name, const char* type, auto member) {
            made->addProperty(makeProperty<Gadget>(
                name, type, [member](const Gadget& g) { return g.*member; },
                [member](Gadget& g, auto value) {
                    g.*member = std::move(value);
                    ++g.writes;
                }));
        };
        add("label", "asciiString", &Gadget::label);
        add("title", "unicodeString", &Gadget::title);
        add("items", "cell", &Gadget::items);
        add("record", "struct", &Gadget::record);
        add("numbers", "double", &Gadget::numbers);
        add("weight", "double scalar", &Gadget::weight);
        add("flags", "logical", &Gadget::flags);
        add("active", "logical scalar", &Gadget::active);
        add("peer", "test.ocos.Gadget", &Gadget::peer);
        const auto heavier = [](auto, ValueArrayPtr* plhs, auto, const ValueArray* const* prhs) {
            plhs[0] = makeValue(ValueArray::logicalScalar(gadgetAt(*prhs[0]).weight > gadgetAt(*prhs[1]).weight));
        };
        made->addMethod(lambdaMethod("heavier", {{"test.ocos.Gadget", "test.ocos.Gadget"}, {"logical"}}, heavier));
        made->setInstanceFactory([] { return std::make_shared<Gadget>(); });
        getNamespace("test").getInnerNamespace("ocos")->registerClass("Gadget", made);
        return std::shared_ptr<const COSClassInfo>(made);
    }();
    return info;
}

/// A 1-by-1 Gadget array whose instance has the label.
inline ValueArray makeGadget(const std::string& label) {
    ValueArray gadgets = newObjectArray(gadgetClass(), Dims{1, 1});
    setProperty(gadgets, 0, "label", ValueArray::charsFromUtf8(label));
    return gadgets;
}

/// Calls the method chosen by the inputs and returns its first output; null
/// when the dispatch class has no such method.
inline ValueArrayPtr callOn(std::string_view name, std::int32_t nlhs, std::vector<const ValueArray*> inputs) {
    ValueArrayPtr out[2];
    callMethodIfDefined(name, nlhs, out, static_cast<std::int32_t>(inputs.size()), inputs.data());
    return std::move(out[0]);
}

}  // namespace ocos_test
