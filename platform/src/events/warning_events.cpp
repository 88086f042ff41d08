// The warning events; their out-of-line destructors anchor their type information
// in the platform library, so listeners in any library can recognise them.
#include <orrery/events/warning_events.hpp>

namespace orrery::events {

IssuedWarningEvent::IssuedWarningEvent(const lang::diagnostic::Warning& warning) : warning_(warning) {}

IssuedWarningEvent::~IssuedWarningEvent() = default;

IssuedEnabledWarningEvent::IssuedEnabledWarningEvent(const lang::diagnostic::Warning& warning) : warning_(warning) {}

IssuedEnabledWarningEvent::~IssuedEnabledWarningEvent() = default;

}  // namespace orrery::events
