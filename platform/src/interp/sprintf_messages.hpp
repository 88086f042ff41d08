// Catalogue keys of the failures that sprintf reports.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::interp::detail {

ORRERY_MESSAGE_KEY(MissingStringArgument, "ORRERY:sprintf:missingStringArgument", 0);
/// {0}: the conversion as written, from its percent sign.
/// {0}: the largest width or precision accepted.
ORRERY_MESSAGE_KEY(BadFieldSize, "ORRERY:sprintf:badFieldSize", 1);
/// {0}: the class of the argument.
ORRERY_MESSAGE_KEY(UnsupportedArgument, "ORRERY:sprintf:unsupportedArgument", 1);
/// {0}: the most characters a result may hold.
ORRERY_MESSAGE_KEY(ResultTooLong, "ORRERY:sprintf:resultTooLong", 1);

}  // namespace orrery::interp::detail
