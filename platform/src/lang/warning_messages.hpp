// Catalogue keys of values that do not fit a warning record's arguments or stack.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::lang::diagnostic::messages {

ORRERY_MESSAGE_KEY(BadArguments, "ORRERY:warning:badArguments");
ORRERY_MESSAGE_KEY(BadArgument, "ORRERY:warning:badArgument");
ORRERY_MESSAGE_KEY(BadStack, "ORRERY:warning:badStack");
ORRERY_MESSAGE_KEY(BadStackFrame, "ORRERY:warning:badStackFrame");

}  // namespace orrery::lang::diagnostic::messages
