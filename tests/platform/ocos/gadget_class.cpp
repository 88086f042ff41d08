// The test class "test.ocos.Gadget".
#include "gadget_class.hpp"

#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/registry.hpp>

namespace ocos_test {

using namespace orrery::ocos;
using orrery::value::makeValue;
using orrery::value::ValueArrayPtr;

namespace {

template <class Member>
COSPropInfo property(const char* name, const char* type, Member Gadget::*member) {
    return makeProperty<Gadget>(
        name, type, [member](const Gadget& gadget) { return gadget.*member; },
        [member](Gadget& gadget, Member value) {
            gadget.*member = std::move(value);
            ++gadget.writes;
        });
}

class LambdaMI final : public COSMethodInfo {
public:
    LambdaMI(std::string name, COSMethodSignature signature, MethodBody body)
        : COSMethodInfo(std::move(name), std::move(signature)), body_(std::move(body)) {}
    void invoke(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs,
                const ValueArray* const* prhs) const override {
        if (body_) body_(nlhs, plhs, nrhs, prhs);
    }

private:
    MethodBody body_;
};

void heavier(std::int32_t, ValueArrayPtr* plhs, std::int32_t, const ValueArray* const* prhs) {
    plhs[0] = makeValue(ValueArray::logicalScalar(gadgetAt(*prhs[0]).weight > gadgetAt(*prhs[1]).weight));
}

std::shared_ptr<const COSClassInfo> describeGadget() {
    auto info = std::make_shared<COSClassInfo>(gadgetClassName);
    info->addProperty(property("label", "asciiString", &Gadget::label));
    info->addProperty(property("title", "unicodeString", &Gadget::title));
    info->addProperty(property("items", "cell", &Gadget::items));
    info->addProperty(property("record", "struct", &Gadget::record));
    info->addProperty(property("numbers", "double", &Gadget::numbers));
    info->addProperty(property("weight", "double scalar", &Gadget::weight));
    info->addProperty(property("flags", "logical", &Gadget::flags));
    info->addProperty(property("active", "logical scalar", &Gadget::active));
    info->addProperty(property("peer", gadgetClassName, &Gadget::peer));
    info->addMethod(
        lambdaMethod("heavier", COSMethodSignature({gadgetClassName, gadgetClassName}, {"logical"}), heavier));
    info->setInstanceFactory([] { return std::make_shared<Gadget>(); });
    getNamespace("test").getInnerNamespace("ocos")->registerClass("Gadget", info);
    return info;
}

}  // namespace

std::shared_ptr<const COSMethodInfo> lambdaMethod(std::string name, COSMethodSignature signature, MethodBody body) {
    return std::make_shared<LambdaMI>(std::move(name), std::move(signature), std::move(body));
}

std::shared_ptr<const COSClassInfo> gadgetClass() {
    static const std::shared_ptr<const COSClassInfo> info = describeGadget();
    return info;
}

ValueArray makeGadget(const std::string& label) {
    ValueArray gadgets = newObjectArray(gadgetClass(), orrery::value::Dims{1, 1});
    setProperty(gadgets, 0, "label", ValueArray::charsFromUtf8(label));
    return gadgets;
}

const Gadget& gadgetAt(const ValueArray& gadgets, std::size_t i) {
    return instanceAs<Gadget>(*validInstanceAt(gadgets, i));
}

}  // namespace ocos_test
