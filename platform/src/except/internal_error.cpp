// Internal faults.
#include <orrery/except/internal_error.hpp>

#include <string>

namespace orrery::except {

InternalError::~InternalError() = default;

void internalError(std::string_view component, std::string_view what) {
    throw InternalError(std::string(component) + ": " + std::string(what));
}

}  // namespace orrery::except
