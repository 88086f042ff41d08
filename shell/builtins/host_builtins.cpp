// Registers the host built-in groups in the platform's function table.
#include "shell/builtins/host_builtins.hpp"

#include "shell/builtins/builtin_groups.hpp"

#include <orrery/interp/function_table.hpp>

namespace orrery::shell {
namespace {

void registerTable(std::span<const builtins::BuiltinEntry> table) {
    for (const auto& entry : table) interp::registerFunction(entry.name, entry.function);
}

}  // namespace

void registerHostBuiltins() {
    using namespace builtins;
    for (const auto group : {valueBuiltins(), constructionBuiltins(), textBuiltins(), textConversionBuiltins(),
                             structBuiltins(), mathBuiltins(), extremaBuiltins(), sortBuiltins(), timeBuiltins(),
                             fileBuiltins(), folderBuiltins(), messageBuiltins()})
        registerTable(group);
}

}  // namespace orrery::shell
