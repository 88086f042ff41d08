// Tests of the event publisher and its subscriptions.
#include <orrery/events/event_publisher.hpp>

#include <gtest/gtest.h>

#include <memory>
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

TEST(EventPublisher, DestroyingResettingOrOverwritingASubscriptionUnsubscribes) {
    auto publisher = std::make_unique<EventPublisher>();
    std::vector<int> heard;
    const auto kept = publisher->subscribe(recorder(heard, 1));
    std::optional<Subscription> dropped = publisher->subscribe(recorder(heard, 2));
    Subscription moved = publisher->subscribe(recorder(heard, 3));
    Subscription target = std::move(moved);
    Subscription overwritten = publisher->subscribe(recorder(heard, 4));
    overwritten = publisher->subscribe(recorder(heard, 5));
    dropped.reset();
    publisher->publish(NumberEvent(1));
    target.reset();
    publisher->publish(NumberEvent(2));
    EXPECT_EQ(heard, (std::vector<int>{101, 301, 501, 102, 502}));
    EXPECT_EQ(publisher->listenerCount(), 2u);
    // A subscription may outlive its publisher.
    publisher.reset();
    EXPECT_FALSE(kept.active());
    overwritten.reset();  // must not reach the destroyed publisher
}

TEST(EventPublisher, ListenersMayChangeTheListDuringAPublish) {
    EventPublisher publisher;
    std::vector<int> heard;
    std::optional<Subscription> later;
    std::vector<Subscription> added;
    const auto changer = publisher.subscribe([&](const Event&) {
        later.reset();
        added.push_back(publisher.subscribe(recorder(heard, 9)));
    });
    later = publisher.subscribe(recorder(heard, 2));
    publisher.publish(NumberEvent(1));
    EXPECT_TRUE(heard.empty());
    publisher.publish(NumberEvent(2));
    EXPECT_EQ(heard, (std::vector<int>{902}));
}
