// Catalogue keys of what the Warning class raises.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::diagnostic::ids {

/// Argument: the class name of the array.
ORRERY_MESSAGE_KEY(InvalidWarningElement, "ORRERY:warning:Invalid", 1);
ORRERY_MESSAGE_KEY(CompareDimagree, "ORRERY:warning:compare:dimagree", 0);
ORRERY_MESSAGE_KEY(SortNDSort, "ORRERY:warning:sort:NDSort", 0);

}  // namespace orrery::diagnostic::ids
