// The event publisher on a signal: one slot per subscribed listener.
#include <orrery/events/event_publisher.hpp>

namespace orrery::events {

EventPublisher::EventPublisher() = default;

EventPublisher::~EventPublisher() = default;

boost::signals2::scoped_connection EventPublisher::subscribe(const Listener& listener) {
    return signal_.connect(listener);
}

void EventPublisher::publish(const Event& event) const { signal_(event); }

bool EventPublisher::hasListeners() const { return !signal_.empty(); }

}  // namespace orrery::events
