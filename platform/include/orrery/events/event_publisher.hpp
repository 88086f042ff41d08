// Publishes events synchronously to the listeners subscribed to it.
#pragma once

#include <orrery/events/event.hpp>
#include <orrery/export.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace orrery::events {

class ListenerList;

/// A listener's place in a publisher. Destroying it (or calling reset) unsubscribes
/// the listener; it may outlive its publisher, and then does nothing. Movable only.
class ORRERY_API Subscription {
public:
    Subscription() = default;
    ~Subscription();
    Subscription(Subscription&& other) noexcept;
    Subscription& operator=(Subscription&& other) noexcept;
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    /// Unsubscribes now; afterwards the subscription is empty.
    void reset() noexcept;
    /// True while the listener is subscribed to a living publisher.
    bool active() const noexcept;

private:
    friend class EventPublisher;
    Subscription(std::weak_ptr<ListenerList> list, std::uint64_t id) noexcept;

    std::weak_ptr<ListenerList> list_;
    std::uint64_t id_ = 0;
};

/// Calls its listeners with each published event, on the publishing thread, in the
/// order in which they subscribed. Subscribing and unsubscribing are safe from any
/// thread and from inside a listener: a listener removed during a publish is not
/// called after its removal, and one added during a publish first hears the next event.
class ORRERY_API EventPublisher {
public:
    using Listener = std::function<void(const Event&)>;

    EventPublisher();
    ~EventPublisher();
    EventPublisher(const EventPublisher&) = delete;
    EventPublisher& operator=(const EventPublisher&) = delete;

    /// Adds a listener at the end of the list; it stays until the returned
    /// subscription is destroyed or reset.
    [[nodiscard]] Subscription subscribe(Listener listener);

    /// Calls every subscribed listener with the event. An exception from a listener
    /// passes out at once; the listeners after it are not called for this event.
    void publish(const Event& event) const;

    /// The number of subscribed listeners.
    std::size_t listenerCount() const;

private:
    std::shared_ptr<ListenerList> listeners_;
};

}  // namespace orrery::events
