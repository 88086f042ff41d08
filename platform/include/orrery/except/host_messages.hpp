// Catalogue keys of the interpreter's own failures.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::except::host {

ORRERY_MESSAGE_KEY(TooManyOutputs, "ORRERY:tooManyOutputs", 0);
ORRERY_MESSAGE_KEY(TooManyInputs, "ORRERY:tooManyInputs", 0);
ORRERY_MESSAGE_KEY(NotEnoughInputs, "ORRERY:notEnoughInputs", 0);
ORRERY_MESSAGE_KEY(InvalidInput, "ORRERY:invalidInput", 0);
ORRERY_MESSAGE_KEY(UndefinedFunction, "ORRERY:undefinedFunction", 1);

ORRERY_MESSAGE_KEY(InvalidCharacter, "ORRERY:text:invalidCharacter", 0);
ORRERY_MESSAGE_KEY(InvalidUtf8, "ORRERY:text:invalidUtf8", 0);
ORRERY_MESSAGE_KEY(InvalidUtf16, "ORRERY:text:invalidUtf16", 0);

ORRERY_MESSAGE_KEY(IndexOutOfRange, "ORRERY:value:indexOutOfRange", 2);
ORRERY_MESSAGE_KEY(WrongClass, "ORRERY:value:wrongClass", 2);
ORRERY_MESSAGE_KEY(NotScalar, "ORRERY:value:notScalar", 0);
ORRERY_MESSAGE_KEY(NotLogicalConvertible, "ORRERY:value:notLogicalConvertible", 0);
ORRERY_MESSAGE_KEY(NoSuchField, "ORRERY:value:noSuchField", 1);
ORRERY_MESSAGE_KEY(BadDimensions, "ORRERY:value:badDimensions", 0);
ORRERY_MESSAGE_KEY(NestedTooDeep, "ORRERY:value:nestedTooDeep", 1);

}  // namespace orrery::except::host
