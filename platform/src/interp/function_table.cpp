// The process-wide table of language functions and calls by name.
#include <orrery/interp/function_table.hpp>

#include "platform_functions.hpp"

#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/text/text.hpp>

#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace orrery::interp {
namespace {

// The map and its lock. The platform's own functions are in it from its
// creation, on first use, so they exist before any host registers anything.
struct FunctionTable {
    FunctionTable() {
        for (auto& [name, function] : detail::platformFunctions()) functions.emplace(name, std::move(function));
    }
    std::mutex lock;
    std::map<std::string, LanguageFunction, std::less<>> functions;
};

FunctionTable& table() {
    static FunctionTable instance;
    return instance;
}

LanguageFunction lookUp(std::string_view name) {
    FunctionTable& functions = table();
    const std::lock_guard guard(functions.lock);
    const auto found = functions.functions.find(name);
    return found != functions.functions.end() ? found->second : LanguageFunction();
}

}  // namespace

void registerFunction(std::string_view name, LanguageFunction function) {
    FunctionTable& functions = table();
    const std::lock_guard guard(functions.lock);
    functions.functions.insert_or_assign(std::string(name), std::move(function));
}

bool isFunction(std::string_view name) { return static_cast<bool>(lookUp(name)); }

std::vector<std::string> functionNames() {
    FunctionTable& functions = table();
    const std::lock_guard guard(functions.lock);
    std::vector<std::string> names;
    names.reserve(functions.functions.size());
    for (const auto& [name, function] : functions.functions) names.push_back(name);
    return names;
}

void callFunction(std::string_view name, std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs,
                  const value::ValueArray* const* prhs) {
    if (ocos::callMethodIfDefined(name, nlhs, plhs, nrhs, prhs)) return;
    // Called outside the lock: the function may itself call by name.
    const LanguageFunction function = lookUp(name);
    if (!function) except::throwMessage(except::host::UndefinedFunction(text::utf8ToUtf16(name)));
    function(nlhs, plhs, nrhs, prhs);
}

}  // namespace orrery::interp
