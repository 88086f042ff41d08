// The event base, whose out-of-line destructor anchors its type information here.
#include <orrery/events/event.hpp>

namespace orrery::events {

Event::~Event() = default;

}  // namespace orrery::events
