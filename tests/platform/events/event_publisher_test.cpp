// Tests of the event publisher and its connections.
#include <orrery/events/event_publisher.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <vector>

using namespace orrery::events;

namespace {

struct NumberEvent : Event {
    explicit NumberEvent(int n) : number(n) {}
    int number;
};

/// A listener that records the number of each NumberEvent it hears, tagged with its own name.
EventPublisher::Listener recorder(std::vector<int>& heard, int name) {
    return [&heard, name](const Event& event) {
        if (const auto* e = dynamic_cast<const NumberEvent*>(&event)) heard.push_back(100 * name + e->number);
    };
}

}  // namespace

TEST(EventPublisher, CallsListenersInSubscriptionOrderUntilOneFails) {
    EventPublisher publisher;
    std::vector<int> heard;
    const auto first = publisher.subscribe(recorder(heard, 1));
    const auto second = publisher.subscribe(recorder(heard, 2));
    publisher.publish(NumberEvent(7));
    EXPECT_EQ(heard, (std::vector<int>{107, 207}));
    const auto failing = publisher.subscribe([](const Event&) { throw std::runtime_error("listener failed"); });
    const auto last = publisher.subscribe(recorder(heard, 4));
    EXPECT_THROW(publisher.publish(NumberEvent(8)), std::runtime_error);
    EXPECT_EQ(heard, (std::vector<int>{107, 207, 108, 208}));
}

TEST(EventPublisher, DestroyingAConnectionUnsubscribesItsListenerOnly) {
    EventPublisher publisher;
    EXPECT_FALSE(publisher.hasListeners());
    std::vector<int> heard;
    const auto kept = publisher.subscribe(recorder(heard, 1));
    std::optional<boost::signals2::scoped_connection> dropped = publisher.subscribe(recorder(heard, 2));
    EXPECT_TRUE(publisher.hasListeners());
    publisher.publish(NumberEvent(1));
    dropped.reset();
    publisher.publish(NumberEvent(2));
    EXPECT_EQ(heard, (std::vector<int>{101, 201, 102}));
}
