// Catalogue keys of the errors the lexer and parser raise. Each names the
// source, the line and the column first.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::shell::lang {

/// {3}: what was expected; {4}: what was found.
ORRERY_MESSAGE_KEY(UnexpectedToken, "ORRERY:shell:unexpectedToken", 5);
ORRERY_MESSAGE_KEY(UnterminatedText, "ORRERY:shell:unterminatedText", 3);
/// {3}: the character.
ORRERY_MESSAGE_KEY(BadCharacter, "ORRERY:shell:badCharacter", 4);
/// A quoted text or command word that is not UTF-8.
ORRERY_MESSAGE_KEY(BadText, "ORRERY:shell:badText", 3);
/// {3}: the spelling.
ORRERY_MESSAGE_KEY(BadNumber, "ORRERY:shell:badNumber", 4);
ORRERY_MESSAGE_KEY(UnterminatedComment, "ORRERY:shell:unterminatedComment", 3);
/// {3}: the nesting limit.
ORRERY_MESSAGE_KEY(TooDeep, "ORRERY:shell:tooDeep", 4);
ORRERY_MESSAGE_KEY(BadAssignmentTarget, "ORRERY:shell:badAssignmentTarget", 3);
/// {3}: the keyword (break, continue).
ORRERY_MESSAGE_KEY(OutsideLoop, "ORRERY:shell:outsideLoop", 4);
ORRERY_MESSAGE_KEY(MisplacedFunction, "ORRERY:shell:misplacedFunction", 3);
/// {3}: the function name.
ORRERY_MESSAGE_KEY(DuplicateFunction, "ORRERY:shell:duplicateFunction", 4);

}  // namespace orrery::shell::lang
