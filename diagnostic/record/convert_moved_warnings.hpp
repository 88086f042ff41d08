// Warning records moved into objects of the Warning class, for the module's own
// callers that no longer need the records.
#pragma once

#include "diagnostic/record/convert_warnings.hpp"

namespace orrery::lang::diagnostic {

/// As convertWarningsToValueArray(const std::vector<Warning>&), moving the
/// records into the objects instead of copying them.
value::ValueArrayPtr convertWarningsToValueArray(std::vector<Warning>&& warnings);

}  // namespace orrery::lang::diagnostic
