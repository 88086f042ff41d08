// Start-up registration of the orrery command's own built-in functions.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace orrery::shell {

/// Registers every host built-in (disp, size, struct, sort, exist, ...) in the
/// platform's function table. Registering again replaces the same functions; the
/// platform's own isscalar and sprintf are not among them.
void registerHostBuiltins();

/// The language names registerHostBuiltins registers.
std::vector<std::string_view> hostBuiltinNames();

/// Answers whether a name is a variable of the workspace that is running.
using VariableQuery = std::function<bool(std::string_view name)>;

/// Installs the evaluator's variable query, which exist(name) and
/// exist(name, 'var') consult (an empty query knows no variables). Returns the
/// previous one.
VariableQuery setVariableQuery(VariableQuery query);

}  // namespace orrery::shell
