// Publishes events synchronously to the listeners subscribed to it.
#pragma once

#include <orrery/events/event.hpp>
#include <orrery/export.hpp>

#include <boost/signals2/signal.hpp>

namespace orrery::events {

/// Calls its listeners with each published event, on the publishing thread, in the
/// order in which they subscribed. Subscribing and unsubscribing are safe from any
/// thread and from inside a listener: a listener removed during a publish is not
/// called after its removal, and one added during a publish first hears the next event.
class ORRERY_API EventPublisher {
public:
    using Signal = boost::signals2::signal<void(const Event&)>;
    /// Anything callable with a const Event&; it may track objects whose expiry
    /// disconnects it.
    using Listener = Signal::slot_type;

    EventPublisher();
    ~EventPublisher();
    EventPublisher(const EventPublisher&) = delete;
    EventPublisher& operator=(const EventPublisher&) = delete;

    /// Adds a listener at the end of the list. It stays subscribed while the returned
    /// connection lives; the connection may outlive the publisher.
    [[nodiscard]] boost::signals2::scoped_connection subscribe(const Listener& listener);

    /// Calls every subscribed listener with the event. An exception from a listener
    /// passes out at once; the listeners after it are not called for this event.
    void publish(const Event& event) const;

    /// True when at least one listener is subscribed, so that a published event
    /// has a receiver; publishers of costly events may skip building them otherwise.
    bool hasListeners() const;

private:
    Signal signal_;
};

}  // namespace orrery::events
