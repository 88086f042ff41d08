// Catalogue keys of the class system's failures.
#pragma once

#include <orrery/except/message_id.hpp>

namespace orrery::ocos::messages {

/// {0} property, {1} class, {2} declared type.
ORRERY_MESSAGE_KEY(PropertyType, "ORRERY:ocos:propertyType", 3);
/// {0} property, {1} class.
ORRERY_MESSAGE_KEY(NoSuchProperty, "ORRERY:ocos:noSuchProperty", 2);
/// {0} property, {1} class.
ORRERY_MESSAGE_KEY(ReadOnlyProperty, "ORRERY:ocos:readOnlyProperty", 2);
/// {0} dotted class name.
ORRERY_MESSAGE_KEY(NoSuchClass, "ORRERY:ocos:noSuchClass", 1);
/// {0} dotted function name.
ORRERY_MESSAGE_KEY(NoSuchFunction, "ORRERY:ocos:noSuchFunction", 1);
/// {0} one-based element index, {1} class.
ORRERY_MESSAGE_KEY(InvalidElement, "ORRERY:ocos:invalidElement", 2);
/// {0} one-based argument position, {1} method or function, {2} declared type.
ORRERY_MESSAGE_KEY(ArgumentType, "ORRERY:ocos:argumentType", 3);
/// {0} message identifier.
ORRERY_MESSAGE_KEY(NoSuchMessage, "ORRERY:ocos:noSuchMessage", 1);

}  // namespace orrery::ocos::messages
