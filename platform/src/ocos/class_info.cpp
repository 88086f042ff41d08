// Class descriptions and instances: the parts every value needs.
#include <orrery/ocos/class_info.hpp>

namespace orrery::ocos {

COSClassInfo::COSClassInfo(std::string fullName) : fullName_(std::move(fullName)) {}
COSClassInfo::~COSClassInfo() = default;
COSObject::~COSObject() = default;

}  // namespace orrery::ocos
