// Catalogue keys of the language errors the evaluator raises itself.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::shell::eval {

/// {0}: class.
ORRERY_MESSAGE_KEY(NotIndexable, "ORRERY:shell:notIndexable", 1);
/// {0}: class; {1}: field.
ORRERY_MESSAGE_KEY(NoFields, "ORRERY:shell:noFields", 2);
/// {0}: the struct array's size.
ORRERY_MESSAGE_KEY(StructArrayField, "ORRERY:shell:structArrayField", 1);
ORRERY_MESSAGE_KEY(BadFieldName, "ORRERY:shell:badFieldName", 0);
ORRERY_MESSAGE_KEY(NoValue, "ORRERY:shell:noValue", 0);
/// {0}: the number of values.
ORRERY_MESSAGE_KEY(ManyValues, "ORRERY:shell:manyValues", 1);
/// {0}: function.
ORRERY_MESSAGE_KEY(NoOutput, "ORRERY:shell:noOutput", 1);
/// {0}: output; {1}: function.
ORRERY_MESSAGE_KEY(OutputNotSet, "ORRERY:shell:outputNotSet", 2);
/// {0}: function.
ORRERY_MESSAGE_KEY(EndInCall, "ORRERY:shell:endInCall", 1);
/// {0}: limit.
ORRERY_MESSAGE_KEY(RecursionLimit, "ORRERY:shell:recursionLimit", 1);
ORRERY_MESSAGE_KEY(TooDeepToRun, "ORRERY:shell:tooDeepToRun", 0);
ORRERY_MESSAGE_KEY(SwitchValue, "ORRERY:shell:switchValue", 0);
/// {0}: class.
ORRERY_MESSAGE_KEY(ForOverClass, "ORRERY:shell:forOverClass", 1);
ORRERY_MESSAGE_KEY(OutOfMemory, "ORRERY:shell:outOfMemory", 0);
ORRERY_MESSAGE_KEY(Interrupted, "ORRERY:shell:interrupted", 0);
ORRERY_MESSAGE_KEY(BadConversion, "ORRERY:shell:badConversion", 0);
/// {0}: the script; {1}: why, as the system says it.
ORRERY_MESSAGE_KEY(CannotRead, "ORRERY:shell:cannotRead", 2);

}  // namespace orrery::shell::eval
