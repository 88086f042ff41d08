// Catalogue keys of values that do not fit a warning record's arguments or stack.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::lang::diagnostic::messages {

ORRERY_MESSAGE_KEY(BadArguments, "ORRERY:warning:badArguments", 0);
ORRERY_MESSAGE_KEY(BadArgument, "ORRERY:warning:badArgument", 1);
ORRERY_MESSAGE_KEY(BadStack, "ORRERY:warning:badStack", 0);
ORRERY_MESSAGE_KEY(BadStackFrame, "ORRERY:warning:badStackFrame", 1);

}  // namespace orrery::lang::diagnostic::messages
