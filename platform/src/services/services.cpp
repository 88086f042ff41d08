// Registered built-ins and feature switches of the services layer.
#include <orrery/interp/function_table.hpp>
#include <orrery/services/services.hpp>

#include <map>
#include <mutex>

namespace orrery::services {
namespace {

struct Registry {
    std::mutex mutex;
    std::map<std::string, int, std::less<>> registrations;
    std::map<std::string, bool, std::less<>> features;
};

Registry& registry() {
    static Registry instance;
    return instance;
}

}  // namespace

void svRegisterBuiltin(std::string_view name, int /*flags*/, value::BuiltinFunction function) {
    auto& r = registry();
    std::lock_guard lock(r.mutex);
    ++r.registrations[std::string(name)];
    interp::registerFunction(name, function);
}

int svRegistrationCount(std::string_view name) {
    auto& r = registry();
    std::lock_guard lock(r.mutex);
    const auto found = r.registrations.find(name);
    return found == r.registrations.end() ? 0 : found->second;
}

bool svIsFeatureRegistered(std::string_view feature) {
    auto& r = registry();
    std::lock_guard lock(r.mutex);
    return r.features.contains(feature);
}

bool svIsFeatureEnabled(std::string_view feature) {
    auto& r = registry();
    std::lock_guard lock(r.mutex);
    const auto found = r.features.find(feature);
    return found != r.features.end() && found->second;
}

void svSetFeature(std::string_view feature, bool enabled) {
    auto& r = registry();
    std::lock_guard lock(r.mutex);
    r.features[std::string(feature)] = enabled;
}

void svUnregisterFeature(std::string_view feature) {
    auto& r = registry();
    std::lock_guard lock(r.mutex);
    if (const auto found = r.features.find(feature); found != r.features.end()) r.features.erase(found);
}

}  // namespace orrery::services
