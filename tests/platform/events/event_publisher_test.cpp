// Tests of the event publisher and its connections.
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

TEST(EventPublisher, DestroyingAConnectionUnsubscribesItsListenerOnly) {
    EventPublisher publisher;
    std::vector<int> heard;
    const auto kept = publisher.subscribe(recorder(heard, 1));
    std::optional<boost::signals2::scoped_connection> dropped = publisher.subscribe(recorder(heard, 2));
    const auto last = publisher.subscribe(recorder(heard, 3));
    publisher.publish(NumberEvent(1));
    dropped.reset();
    publisher.publish(NumberEvent(2));
    EXPECT_EQ(heard, (std::vector<int>{101, 201, 301, 102, 302}));
}

TEST(EventPublisher, AConnectionMayOutliveItsPublisher) {
    auto publisher = std::make_unique<EventPublisher>();
    std::vector<int> heard;
    auto connection = publisher->subscribe(recorder(heard, 1));
    publisher.reset();
    EXPECT_FALSE(connection.connected());
    connection.disconnect();  // must not reach the destroyed publisher
}

TEST(EventPublisher, ListenersMayChangeTheListDuringAPublish) {
    EventPublisher publisher;
    std::vector<int> heard;
    std::optional<boost::signals2::scoped_connection> later;
    std::vector<boost::signals2::scoped_connection> added;
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

TEST(EventPublisher, HasListenersOnlyWhileOneIsSubscribed) {
    EventPublisher publisher;
    EXPECT_FALSE(publisher.hasListeners());
    std::vector<int> heard;
    std::optional<boost::signals2::scoped_connection> connection = publisher.subscribe(recorder(heard, 1));
    EXPECT_TRUE(publisher.hasListeners());
    connection.reset();
    EXPECT_FALSE(publisher.hasListeners());
}
