// Catalogue keys of the orrery command's start-up errors.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::shell::startup {

/// {0}: the file looked for.
ORRERY_MESSAGE_KEY(ModuleNotFound, "ORRERY:shell:moduleNotFound", 1);
/// {0}: the file; {1}: the loader's explanation.
ORRERY_MESSAGE_KEY(ModuleNotLoaded, "ORRERY:shell:moduleNotLoaded", 2);
/// {0}: the file; {1}: the symbol.
ORRERY_MESSAGE_KEY(MissingSymbol, "ORRERY:shell:missingSymbol", 2);
/// {0}: the option.
ORRERY_MESSAGE_KEY(UnknownOption, "ORRERY:shell:unknownOption", 1);
ORRERY_MESSAGE_KEY(MissingText, "ORRERY:shell:missingText", 0);
/// {0}: the option.
ORRERY_MESSAGE_KEY(MissingValue, "ORRERY:shell:missingValue", 1);
/// {0}: the argument.
ORRERY_MESSAGE_KEY(ExtraArgument, "ORRERY:shell:extraArgument", 1);
/// {0}: the setting as written; {1}: where it was given (-W or ORRERY_WARNINGS).
ORRERY_MESSAGE_KEY(BadWarningSetting, "ORRERY:shell:badWarningSetting", 2);
/// {0}: the setting; {1}: where it was given; {2}: the warning built-in's message.
ORRERY_MESSAGE_KEY(RefusedWarningSetting, "ORRERY:shell:refusedWarningSetting", 3);
/// {0}: the format asked for.
ORRERY_MESSAGE_KEY(BadSummaryFormat, "ORRERY:shell:badSummaryFormat", 1);
ORRERY_MESSAGE_KEY(FormatWithoutSummary, "ORRERY:shell:formatWithoutSummary", 0);
/// {0}: the log file; {1}: the reader's identifier; {2}: its message.
ORRERY_MESSAGE_KEY(LogSummaryFailed, "ORRERY:shell:logSummaryFailed", 3);

}  // namespace orrery::shell::startup
