// Class descriptions and object instances of the class system.
#pragma once

#include <orrery/export.hpp>
#include <orrery/ocos/cos_name.hpp>
#include <orrery/ocos/prop_info.hpp>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::ocos {

class COSMethodInfo;

/// One instance (one element) of an object array.
class ORRERY_API COSObject {
public:
    virtual ~COSObject();
    /// A new instance holding a copy of this one's state (value semantics).
    virtual std::shared_ptr<COSObject> clone() const = 0;
};

/// The description of a class of the class system: its name, its properties and
/// methods in the order of declaration, and how to make a new instance.
/// Properties and methods are added while the class is described, before it is
/// registered; from then on the class is shared read-only.
class ORRERY_API COSClassInfo {
public:
    using InstanceFactory = std::function<std::shared_ptr<COSObject>()>;

    /// fullName: the dotted path of the class ("orrery.internal.diagnostic.Warning").
    explicit COSClassInfo(std::string fullName);
    virtual ~COSClassInfo();
    COSClassInfo(const COSClassInfo&) = delete;
    COSClassInfo& operator=(const COSClassInfo&) = delete;

    const std::string& getName() const noexcept { return fullName_; }
    /// The interned full name: the type text that declares a value of this class.
    COSName getTypeName() const noexcept { return typeName_; }

    // ---- description --------------------------------------------------------
    /// Adds a property after the others. Its type must be a built-in type, this
    /// class or a registered class; that and a repeated name are faults of the
    /// description: an internal error (except::InternalError).
    void addProperty(COSPropInfo property);
    /// Adds a method after the others; its signature is validated like property
    /// types, and a repeated name is an internal error (except::InternalError).
    void addMethod(std::shared_ptr<const COSMethodInfo> method);
    /// Sets how newInstance makes an instance.
    void setInstanceFactory(InstanceFactory factory) { factory_ = std::move(factory); }

    // ---- queries ------------------------------------------------------------
    /// The property of that name, or null.
    const COSPropInfo* findProperty(std::string_view name) const;
    /// The class's own method of that name, or null.
    virtual std::shared_ptr<const COSMethodInfo> findMethod(std::string_view name) const;
    std::span<const COSPropInfo> getProperties() const noexcept { return properties_; }
    const std::vector<std::shared_ptr<const COSMethodInfo>>& getMethods() const noexcept { return methods_; }
    /// Property names in the order of declaration.
    std::vector<std::string> getPropertyNames() const;
    /// Method names in the order of declaration.
    std::vector<std::string> getMethodNames() const;

    /// A new instance from the factory; a class without one is an internal error (except::InternalError).
    std::shared_ptr<COSObject> newInstance() const;

private:
    std::string fullName_;
    COSName typeName_;
    std::vector<COSPropInfo> properties_;
    std::vector<std::shared_ptr<const COSMethodInfo>> methods_;
    InstanceFactory factory_;
};

}  // namespace orrery::ocos
