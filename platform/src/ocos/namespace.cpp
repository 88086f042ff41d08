// Namespaces: nested scopes of classes and functions, and the root that holds
// the host's own classes.
#include <orrery/except/internal_error.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/message_object.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/namespace.hpp>

#include <algorithm>
#include <stdexcept>

namespace orrery::ocos {

namespace {

void checkSimpleName(std::string_view name) {
    if (!isValidDottedName(name) || name.find('.') != std::string_view::npos) {
        except::internalError("class system", "bad name \"" + std::string(name) + "\" in a namespace");
    }
}

std::string joinPath(const std::string& path, std::string_view name) {
    return path.empty() ? std::string(name) : path + "." + std::string(name);
}

}  // namespace

COSNamespace::COSNamespace(std::string name, std::string path) : name_(std::move(name)), path_(std::move(path)) {}
COSNamespace::~COSNamespace() = default;

COSNamespace* COSNamespace::getInnerNamespace(std::string_view name, bool create) {
    checkSimpleName(name);
    const auto found =
        std::find_if(inner_.begin(), inner_.end(), [name](const auto& inner) { return inner->name_ == name; });
    if (found != inner_.end()) return found->get();
    if (!create) return nullptr;
    inner_.push_back(std::unique_ptr<COSNamespace>(new COSNamespace(std::string(name), joinPath(path_, name))));
    return inner_.back().get();
}

void COSNamespace::registerClass(std::string_view name, std::shared_ptr<const COSClassInfo> classInfo) {
    checkSimpleName(name);
    if (!classInfo || classInfo->getName() != joinPath(path_, name)) {
        except::internalError("class system", "class registered as \"" + joinPath(path_, name) + "\" has another name");
    }
    const auto found =
        std::find_if(classes_.begin(), classes_.end(), [name](const auto& entry) { return entry.first == name; });
    if (found != classes_.end()) {
        found->second = std::move(classInfo);
    } else {
        classes_.emplace_back(std::string(name), std::move(classInfo));
    }
}

void COSNamespace::addFunction(std::shared_ptr<const COSMethodInfo> function) {
    if (!function) except::internalError("class system", "null function added to \"" + path_ + "\"");
    checkSimpleName(function->getName());
    for (const COSType& type : function->getSignature().inputs()) validateType(type, {});
    for (const COSType& type : function->getSignature().outputs()) validateType(type, {});
    const auto found = std::find_if(functions_.begin(), functions_.end(),
                                    [&](const auto& known) { return known->getName() == function->getName(); });
    if (found != functions_.end()) {
        *found = std::move(function);
    } else {
        functions_.push_back(std::move(function));
    }
}

std::shared_ptr<const COSClassInfo> COSNamespace::findClass(std::string_view name) const {
    const auto found =
        std::find_if(classes_.begin(), classes_.end(), [name](const auto& entry) { return entry.first == name; });
    return found == classes_.end() ? nullptr : found->second;
}

std::shared_ptr<const COSMethodInfo> COSNamespace::findFunction(std::string_view name) const {
    const auto found = std::find_if(functions_.begin(), functions_.end(),
                                    [name](const auto& function) { return function->getName() == name; });
    return found == functions_.end() ? nullptr : *found;
}

std::vector<std::string> COSNamespace::getFunctionNames() const {
    std::vector<std::string> names;
    names.reserve(functions_.size());
    for (const auto& function : functions_) names.push_back(function->getName());
    return names;
}

COSNamespace& rootNamespace() {
    static COSNamespace* const root = [] {
        auto* made = new COSNamespace({}, {});
        made->registerClass("message", messageClass());
        return made;
    }();
    return *root;
}

}  // namespace orrery::ocos
