// Catalogue keys of the date conversions' failures.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::interp::messages {

ORRERY_MESSAGE_KEY(NotFinite, "ORRERY:dates:notFinite", 0);
ORRERY_MESSAGE_KEY(OutOfRange, "ORRERY:dates:outOfRange", 0);

}  // namespace orrery::interp::messages
