// Reading error structures: identifier, message and stack.
#pragma once

#include <orrery/value/value_array.hpp>

#include <optional>
#include <string>

namespace orrery::diagnostic {

/// The parts of an error structure.
struct ErrorStructure {
    /// UTF-8; empty when the field is absent or empty.
    std::string identifier;
    /// UTF-16; empty when the field is absent.
    std::u16string message;
    /// A shared copy of the stack field, validated; none when the field is absent.
    std::optional<value::ValueArray> stack;
};

/// Reads a 1-by-1 structure whose fields identifier, message and stack are all
/// optional (an unset field counts as absent; for an object, the members are the
/// properties its class declares). Text fields may be text scalars or the 0-by-0
/// char array. Raises, in this order: "ORRERY:error:nonScalarInput" (not 1-by-1),
/// "ORRERY:error:badIdentifier" (identifier not ASCII text, or non-empty and not a
/// valid message identifier), "ORRERY:error:badMessage" (message not text), then
/// the failures of validateStack.
ErrorStructure readErrorStructure(const value::ValueArray& structure);

}  // namespace orrery::diagnostic
