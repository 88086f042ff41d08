// Class descriptions: ordered properties and methods, lookup and instances.
#include <orrery/except/internal_error.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>

#include <algorithm>
#include <stdexcept>

namespace orrery::ocos {

COSObject::~COSObject() = default;

COSClassInfo::COSClassInfo(std::string fullName) : fullName_(std::move(fullName)), typeName_(intern(fullName_)) {}
COSClassInfo::~COSClassInfo() = default;

void COSClassInfo::addProperty(COSPropInfo property) {
    validateType(property.getType(), fullName_);
    if (findProperty(property.getName().view()) != nullptr) {
        except::internalError("class system",
                              "" + fullName_ + " declares property \"" + property.getName().str() + "\" twice");
    }
    properties_.push_back(std::move(property));
}

void COSClassInfo::addMethod(std::shared_ptr<const COSMethodInfo> method) {
    if (!method) except::internalError("class system", "" + fullName_ + " given a null method");
    for (const COSType& type : method->getSignature().inputs()) validateType(type, fullName_);
    for (const COSType& type : method->getSignature().outputs()) validateType(type, fullName_);
    const bool repeated = std::any_of(methods_.begin(), methods_.end(),
                                      [&](const auto& known) { return known->getName() == method->getName(); });
    if (repeated) {
        except::internalError("class system", "" + fullName_ + " declares method \"" + method->getName() + "\" twice");
    }
    methods_.push_back(std::move(method));
}

const COSPropInfo* COSClassInfo::findProperty(std::string_view name) const {
    const auto found = std::find_if(properties_.begin(), properties_.end(),
                                    [name](const COSPropInfo& property) { return property.getName() == name; });
    return found == properties_.end() ? nullptr : &*found;
}

std::shared_ptr<const COSMethodInfo> COSClassInfo::findMethod(std::string_view name) const {
    const auto found = std::find_if(methods_.begin(), methods_.end(),
                                    [name](const auto& method) { return method->getName() == name; });
    return found == methods_.end() ? nullptr : *found;
}

std::vector<std::string> COSClassInfo::getPropertyNames() const {
    std::vector<std::string> names;
    names.reserve(properties_.size());
    for (const COSPropInfo& property : properties_) names.push_back(property.getName().str());
    return names;
}

std::vector<std::string> COSClassInfo::getMethodNames() const {
    std::vector<std::string> names;
    names.reserve(methods_.size());
    for (const auto& method : methods_) names.push_back(method->getName());
    return names;
}

std::shared_ptr<COSObject> COSClassInfo::newInstance() const {
    if (!factory_) except::internalError("class system", "" + fullName_ + " has no instance factory");
    std::shared_ptr<COSObject> instance = factory_();
    if (!instance) except::internalError("class system", "the factory of " + fullName_ + " made no instance");
    return instance;
}

}  // namespace orrery::ocos
