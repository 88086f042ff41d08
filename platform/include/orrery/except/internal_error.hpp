// The one path of internal faults: broken invariants and impossible states.
#pragma once

#include <orrery/export.hpp>

#include <stdexcept>
#include <string_view>

namespace orrery::except {

/// An internal fault of the interpreter or of a module: an invariant that does
/// not hold or a state that cannot happen. It carries no message identifier, is
/// never caught by the language's try/catch, and the host reports it as an
/// internal error (the prompt goes on; a script ends with its own exit status).
class ORRERY_API InternalError : public std::logic_error {
public:
    using std::logic_error::logic_error;
    ~InternalError() override;
    InternalError(const InternalError&) = default;
    InternalError& operator=(const InternalError&) = default;
};

/// Raises an InternalError whose text names the component and what went wrong
/// ("class system: instance is not a message").
[[noreturn]] ORRERY_API void internalError(std::string_view component, std::string_view what);

}  // namespace orrery::except
