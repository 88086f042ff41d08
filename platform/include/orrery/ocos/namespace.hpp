// Namespaces of the class system: nested scopes holding classes and functions.
#pragma once

#include <orrery/export.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orrery::ocos {

class COSClassInfo;
class COSMethodInfo;
class COSNamespace;

/// The unnamed root of all namespaces. It also holds the host's own classes
/// ("message"). It is never destroyed, so the descriptions that modules register
/// stay valid at process exit even after the module is unloaded.
ORRERY_API COSNamespace& rootNamespace();

/// A namespace: inner namespaces, classes and functions, each kept in the order
/// they were added. Namespaces are made by their parent and live as long as it.
class ORRERY_API COSNamespace {
public:
    ~COSNamespace();
    COSNamespace(const COSNamespace&) = delete;
    COSNamespace& operator=(const COSNamespace&) = delete;

    /// The last component of the path ("diagnostic"); empty for the root.
    const std::string& getName() const noexcept { return name_; }
    /// The dotted path from the root ("orrery.internal.diagnostic"); empty for the root.
    const std::string& getPath() const noexcept { return path_; }

    /// The inner namespace of that name; when absent it is made if create is
    /// true, else the answer is null. A name that is not a plain identifier is a
    /// an internal error (except::InternalError).
    COSNamespace* getInnerNamespace(std::string_view name, bool create = true);

    /// Registers a class under its simple name; the class's full name must be this
    /// namespace's path plus that name (otherwise an internal error, except::InternalError). A class of
    /// the same name is replaced, so that a host keeping one registry per
    /// interpreter instance can register again.
    void registerClass(std::string_view name, std::shared_ptr<const COSClassInfo> classInfo);

    /// Adds a function under its method name. Its signature types must be built-in
    /// types or registered classes (otherwise an internal error, except::InternalError). A function of the
    /// same name is replaced.
    void addFunction(std::shared_ptr<const COSMethodInfo> function);

    /// The class or function of that simple name held here, or null.
    std::shared_ptr<const COSClassInfo> findClass(std::string_view name) const;
    std::shared_ptr<const COSMethodInfo> findFunction(std::string_view name) const;
    /// Function names in the order they were first added.
    std::vector<std::string> getFunctionNames() const;

private:
    friend COSNamespace& rootNamespace();
    COSNamespace(std::string name, std::string path);

    std::string name_;
    std::string path_;
    std::vector<std::unique_ptr<COSNamespace>> inner_;
    std::vector<std::pair<std::string, std::shared_ptr<const COSClassInfo>>> classes_;
    std::vector<std::shared_ptr<const COSMethodInfo>> functions_;
};

}  // namespace orrery::ocos
