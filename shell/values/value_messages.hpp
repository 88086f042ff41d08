// Catalogue keys of the language errors raised by operations on values.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::shell::values {

/// {0}, {1}: sizes.
ORRERY_MESSAGE_KEY(SizeMismatch, "ORRERY:shell:sizeMismatch", 2);
/// {0}, {1}: inner sizes.
ORRERY_MESSAGE_KEY(InnerDimensions, "ORRERY:shell:innerDimensions", 2);
/// {0}: operator; {1}, {2}: classes.
ORRERY_MESSAGE_KEY(UnsupportedOperation, "ORRERY:shell:unsupportedOperation", 3);
/// {0}: operator; {1}: element-wise form.
ORRERY_MESSAGE_KEY(MatrixOperation, "ORRERY:shell:matrixOperation", 2);
ORRERY_MESSAGE_KEY(TransposeDimensions, "ORRERY:shell:transposeDimensions", 0);
/// {0}: the index as written.
ORRERY_MESSAGE_KEY(BadIndex, "ORRERY:shell:badIndex", 1);
ORRERY_MESSAGE_KEY(BadIndexClass, "ORRERY:shell:badIndexClass", 0);
/// {0}: position; {1}: index; {2}: size.
ORRERY_MESSAGE_KEY(IndexBeyondDimension, "ORRERY:shell:indexBeyondDimension", 3);
/// {0}: values; {1}: places.
ORRERY_MESSAGE_KEY(AssignmentCount, "ORRERY:shell:assignmentCount", 2);
ORRERY_MESSAGE_KEY(AmbiguousGrowth, "ORRERY:shell:ambiguousGrowth", 0);
ORRERY_MESSAGE_KEY(DeletionShape, "ORRERY:shell:deletionShape", 0);
/// {0}, {1}: sizes.
ORRERY_MESSAGE_KEY(ConcatenationSize, "ORRERY:shell:concatenationSize", 2);
/// {0}, {1}: classes.
ORRERY_MESSAGE_KEY(ConcatenationClass, "ORRERY:shell:concatenationClass", 2);
/// {0}: the array's class; {1}: the value's class.
ORRERY_MESSAGE_KEY(AssignmentClass, "ORRERY:shell:assignmentClass", 2);
/// {0}: class.
ORRERY_MESSAGE_KEY(ConditionClass, "ORRERY:shell:conditionClass", 1);
ORRERY_MESSAGE_KEY(BadRange, "ORRERY:shell:badRange", 0);
/// {0}: elements; {1}: limit.
ORRERY_MESSAGE_KEY(ArrayTooLarge, "ORRERY:shell:arrayTooLarge", 2);
/// {0}: the number as written; {1}: the limit.
ORRERY_MESSAGE_KEY(SizeTooLarge, "ORRERY:shell:sizeTooLarge", 2);

}  // namespace orrery::shell::values
