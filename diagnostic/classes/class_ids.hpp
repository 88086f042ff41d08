// Catalogue keys of what the Warning class raises.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::diagnostic::ids {

/// Argument: the class name of the array.
ORRERY_MESSAGE_KEY(InvalidWarningElement, "ORRERY:warning:Invalid");
ORRERY_MESSAGE_KEY(CompareDimagree, "ORRERY:warning:compare:dimagree");
ORRERY_MESSAGE_KEY(SortNDSort, "ORRERY:warning:sort:NDSort");

}  // namespace orrery::diagnostic::ids
