// Catalogue keys of the interpreter's own failures.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::except::host {

ORRERY_MESSAGE_KEY(TooManyOutputs, "ORRERY:tooManyOutputs");
ORRERY_MESSAGE_KEY(TooManyInputs, "ORRERY:tooManyInputs");
ORRERY_MESSAGE_KEY(NotEnoughInputs, "ORRERY:notEnoughInputs");
ORRERY_MESSAGE_KEY(InvalidInput, "ORRERY:invalidInput");
ORRERY_MESSAGE_KEY(UndefinedFunction, "ORRERY:undefinedFunction");

ORRERY_MESSAGE_KEY(InvalidCharacter, "ORRERY:text:invalidCharacter");
ORRERY_MESSAGE_KEY(InvalidUtf8, "ORRERY:text:invalidUtf8");
ORRERY_MESSAGE_KEY(InvalidUtf16, "ORRERY:text:invalidUtf16");

ORRERY_MESSAGE_KEY(IndexOutOfRange, "ORRERY:value:indexOutOfRange");
ORRERY_MESSAGE_KEY(WrongClass, "ORRERY:value:wrongClass");
ORRERY_MESSAGE_KEY(NotScalar, "ORRERY:value:notScalar");
ORRERY_MESSAGE_KEY(NotLogicalConvertible, "ORRERY:value:notLogicalConvertible");
ORRERY_MESSAGE_KEY(NoSuchField, "ORRERY:value:noSuchField");
ORRERY_MESSAGE_KEY(BadDimensions, "ORRERY:value:badDimensions");
ORRERY_MESSAGE_KEY(NestedTooDeep, "ORRERY:value:nestedTooDeep");

}  // namespace orrery::except::host
