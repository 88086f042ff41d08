// Class descriptions and instances: the parts every value needs.
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>

namespace orrery::ocos {

COSClassInfo::COSClassInfo(std::string fullName) : fullName_(std::move(fullName)) {}
COSClassInfo::~COSClassInfo() = default;

std::shared_ptr<const COSMethodInfo> COSClassInfo::findMethod(std::string_view /*name*/) const { return nullptr; }

COSMethodInfo::COSMethodInfo(std::string name) : name_(std::move(name)) {}
COSMethodInfo::~COSMethodInfo() = default;
COSObject::~COSObject() = default;

}  // namespace orrery::ocos
