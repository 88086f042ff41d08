// Registers the host built-in groups in the platform's function table.
#include "shell/builtins/host_builtins.hpp"

#include "shell/builtins/builtin_groups.hpp"

#include <orrery/interp/function_table.hpp>

namespace orrery::shell {
namespace {

void registerTable(std::span<const builtins::BuiltinEntry> table) {
    for (const auto& entry : table) interp::registerFunction(entry.name, entry.function);
}

// Every group of the host's built-ins.
std::vector<std::span<const builtins::BuiltinEntry>> groups() {
    using namespace builtins;
    return {valueBuiltins(),      constructionBuiltins(), textBuiltins(),    textConversionBuiltins(),
            structBuiltins(),     mathBuiltins(),         extremaBuiltins(), sortBuiltins(),
            timeBuiltins(),       fileBuiltins(),         folderBuiltins(),  messageBuiltins(),
            elementaryBuiltins(), kindBuiltins(),         textEditBuiltins()};
}

}  // namespace

void registerHostBuiltins() {
    for (const auto group : groups()) registerTable(group);
}

std::vector<std::string_view> hostBuiltinNames() {
    std::vector<std::string_view> names;
    for (const auto group : groups())
        for (const auto& entry : group) names.push_back(entry.name);
    return names;
}

}  // namespace orrery::shell
