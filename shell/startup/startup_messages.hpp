// Catalogue keys of the orrery command's start-up errors.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::shell::startup {

/// {0}: the file looked for.
ORRERY_MESSAGE_KEY(ModuleNotFound, "ORRERY:shell:moduleNotFound");
/// {0}: the file; {1}: the loader's explanation.
ORRERY_MESSAGE_KEY(ModuleNotLoaded, "ORRERY:shell:moduleNotLoaded");
/// {0}: the file; {1}: the symbol.
ORRERY_MESSAGE_KEY(MissingSymbol, "ORRERY:shell:missingSymbol");
/// {0}: the script.
ORRERY_MESSAGE_KEY(CannotRead, "ORRERY:shell:cannotRead");
/// {0}: the option.
ORRERY_MESSAGE_KEY(UnknownOption, "ORRERY:shell:unknownOption");
ORRERY_MESSAGE_KEY(MissingText, "ORRERY:shell:missingText");

}  // namespace orrery::shell::startup
