// Lookup by dotted path from the root namespace, and the storage mode flag.
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/ocos_messages.hpp>
#include <orrery/ocos/registry.hpp>
#include <orrery/text/text.hpp>

#include <atomic>

namespace orrery::ocos {

namespace {

std::atomic<bool> perInstanceStorage{false};

/// Splits "a.b.C" into the namespace holding the last component and that component.
std::pair<COSNamespace*, std::string_view> splitPath(std::string_view path) {
    if (!isValidDottedName(path)) return {nullptr, {}};
    const std::size_t dot = path.rfind('.');
    if (dot == std::string_view::npos) return {&rootNamespace(), path};
    return {findNamespace(path.substr(0, dot)), path.substr(dot + 1)};
}

}  // namespace

COSNamespace& getNamespace(std::string_view name) { return *rootNamespace().getInnerNamespace(name, true); }

COSNamespace* findNamespace(std::string_view path) {
    if (!isValidDottedName(path)) return nullptr;
    COSNamespace* current = &rootNamespace();
    while (current != nullptr) {
        const std::size_t dot = path.find('.');
        current = current->getInnerNamespace(path.substr(0, dot), false);
        if (dot == std::string_view::npos) break;
        path.remove_prefix(dot + 1);
    }
    return current;
}

std::shared_ptr<const COSClassInfo> findClass(std::string_view path) {
    const auto [holder, name] = splitPath(path);
    return holder == nullptr ? nullptr : holder->findClass(name);
}

std::shared_ptr<const COSClassInfo> getClass(std::string_view path) {
    auto found = findClass(path);
    if (!found) except::throwMessage(messages::NoSuchClass(text::utf8ToUtf16(path)));
    return found;
}

std::shared_ptr<const COSMethodInfo> findFunction(std::string_view path) {
    const auto [holder, name] = splitPath(path);
    return holder == nullptr ? nullptr : holder->findFunction(name);
}

std::shared_ptr<const COSMethodInfo> getFunction(std::string_view path) {
    auto found = findFunction(path);
    if (!found) except::throwMessage(messages::NoSuchFunction(text::utf8ToUtf16(path)));
    return found;
}

bool isPerInstanceStorage() { return perInstanceStorage.load(); }
void setPerInstanceStorage(bool perInstance) { perInstanceStorage.store(perInstance); }

}  // namespace orrery::ocos
