// The language functions the platform itself provides.
#pragma once

#include <orrery/interp/function_table.hpp>

#include <string>
#include <utility>
#include <vector>

namespace orrery::interp::detail {

/// The platform's own functions ("isscalar", "sprintf") with their names.
std::vector<std::pair<std::string, LanguageFunction>> platformFunctions();

}  // namespace orrery::interp::detail
