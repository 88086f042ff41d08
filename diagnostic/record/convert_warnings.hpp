// Warning records as objects of the class orrery.internal.diagnostic.Warning.
#pragma once

#include "diagnostic/module/export.hpp"

#include <orrery/lang/warning.hpp>
#include <orrery/value/value_array.hpp>

#include <vector>

namespace orrery::lang::diagnostic {

/// A new 1-by-N Warning object array whose element i is a new object holding a
/// copy of warnings[i]; no records give a 1-by-0 Warning array. The module must
/// have registered the class ("ORRERY:ocos:noSuchClass" otherwise).
DIAGNOSTIC_EXPORT value::ValueArrayPtr convertWarningsToValueArray(const std::vector<Warning>& warnings);

}  // namespace orrery::lang::diagnostic
