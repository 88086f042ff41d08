// Class descriptions and object instances of the class system.
#pragma once

#include <orrery/export.hpp>

#include <memory>
#include <string>
#include <string_view>

namespace orrery::ocos {

class COSMethodInfo;

/// The description of a class of the class system.
class ORRERY_API COSClassInfo {
public:
    /// fullName: the dotted path of the class ("orrery.internal.diagnostic.Warning").
    explicit COSClassInfo(std::string fullName);
    virtual ~COSClassInfo();
    COSClassInfo(const COSClassInfo&) = delete;
    COSClassInfo& operator=(const COSClassInfo&) = delete;

    const std::string& getName() const noexcept { return fullName_; }

    /// The class's own method of that name, or null.
    virtual std::shared_ptr<const COSMethodInfo> findMethod(std::string_view name) const;

private:
    std::string fullName_;
};

/// One instance (one element) of an object array.
class ORRERY_API COSObject {
public:
    virtual ~COSObject();
    /// A new instance holding a copy of this one's state (value semantics).
    virtual std::shared_ptr<COSObject> clone() const = 0;
};

}  // namespace orrery::ocos
