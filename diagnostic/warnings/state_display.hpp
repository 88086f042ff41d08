// The console display of warning states (a query without outputs).
#pragma once

#include <orrery/warning/warning_manager.hpp>

#include <string_view>

namespace orrery::diagnostic {

/// The order of identifiers in the display: byte by byte up to the first
/// difference, where ":" counts as 0 and any other byte by its signed value, so
/// identifiers sort component by component (a:b before a-b, a:z before ab).
/// A prefix comes before the longer text.
bool identifierPrecedes(std::string_view a, std::string_view b);

/// Prints the state of a target to the console: for "all" (any case) the default
/// and every identifier whose state differs from it, sorted; for an identifier
/// its state; for an empty target that there is no last warning.
void displayState(warning::WarningManagerContext* context, std::string_view target);

}  // namespace orrery::diagnostic
