// Tests of the event publisher, its subscriptions and the current virtual machine.
#include <orrery/events/event_publisher.hpp>
#include <orrery/events/virtual_machine.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace orrery::events;

namespace {

struct NumberEvent : Event {
    explicit NumberEvent(int n) : number(n) {}
    int number;
};

struct OtherEvent : Event {};

/// A listener that records the number of each NumberEvent it hears, tagged with its own name.
EventPublisher::Listener recorder(std::vector<int>& heard, int name) {
    return [&heard, name](const Event& event) {
        if (const auto* numbered = dynamic_cast<const NumberEvent*>(&event)) heard.push_back(name * 100 + numbered->number);
    };
}

}  // namespace

TEST(EventPublisher, CallsListenersInSubscriptionOrderWithTheEvent) {
    EventPublisher publisher;
    std::vector<int> heard;
    const auto first = publisher.subscribe(recorder(heard, 1));
    const auto second = publisher.subscribe(recorder(heard, 2));
    const auto third = publisher.subscribe(recorder(heard, 3));
    publisher.publish(NumberEvent(7));
    publisher.publish(OtherEvent());
    publisher.publish(NumberEvent(8));
    EXPECT_EQ(heard, (std::vector<int>{107, 207, 307, 108, 208, 308}));
}

TEST(EventPublisher, DestroyingResettingOrOverwritingASubscriptionUnsubscribes) {
    EventPublisher publisher;
    std::vector<int> heard;
    const auto kept = publisher.subscribe(recorder(heard, 1));
    std::optional<Subscription> dropped = publisher.subscribe(recorder(heard, 2));
    Subscription moved = publisher.subscribe(recorder(heard, 3));
    Subscription target = std::move(moved);
    Subscription overwritten = publisher.subscribe(recorder(heard, 4));
    overwritten = publisher.subscribe(recorder(heard, 5));

    dropped.reset();
    publisher.publish(NumberEvent(1));
    target.reset();
    publisher.publish(NumberEvent(2));
    EXPECT_EQ(heard, (std::vector<int>{101, 301, 501, 102, 502}));
    EXPECT_FALSE(target.active());
    EXPECT_EQ(publisher.listenerCount(), 2u);
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

TEST(EventPublisher, AFailingListenerStopsThePublish) {
    EventPublisher publisher;
    std::vector<int> heard;
    const auto first = publisher.subscribe(recorder(heard, 1));
    const auto failing = publisher.subscribe([](const Event&) { throw std::runtime_error("listener failed"); });
    const auto last = publisher.subscribe(recorder(heard, 3));
    EXPECT_THROW(publisher.publish(NumberEvent(5)), std::runtime_error);
    EXPECT_EQ(heard, (std::vector<int>{105}));
}

TEST(EventPublisher, ASubscriptionMayOutliveItsPublisher) {
    std::vector<int> heard;
    auto publisher = std::make_unique<EventPublisher>();
    Subscription subscription = publisher->subscribe(recorder(heard, 1));
    publisher.reset();
    EXPECT_FALSE(subscription.active());
    subscription.reset();
}

TEST(VirtualMachine, NoneIsCurrentOutsideAScope) { EXPECT_EQ(currentLocalVirtualMachine(), nullptr); }

TEST(VirtualMachine, ScopesNestAndRestoreThePreviousMachine) {
    {
        VirtualMachineScope outer;
        EXPECT_EQ(currentLocalVirtualMachine(), &outer.machine());
        {
            VirtualMachineScope inner;
            EXPECT_EQ(currentLocalVirtualMachine(), &inner.machine());
            EXPECT_NE(inner.machine().eventPublisher(), outer.machine().eventPublisher());
        }
        EXPECT_EQ(currentLocalVirtualMachine(), &outer.machine());
    }
    EXPECT_EQ(currentLocalVirtualMachine(), nullptr);
}

TEST(VirtualMachine, CurrentMachineIsPerThread) {
    VirtualMachineScope scope;
    VirtualMachine* seenElsewhere = &scope.machine();
    std::thread([&] { seenElsewhere = currentLocalVirtualMachine(); }).join();
    EXPECT_EQ(seenElsewhere, nullptr);
}

TEST(VirtualMachine, PublishesThroughTheCurrentMachine) {
    VirtualMachineScope scope;
    std::vector<int> heard;
    const auto subscription = scope.machine().eventPublisher()->subscribe(recorder(heard, 1));
    currentLocalVirtualMachine()->eventPublisher()->publish(NumberEvent(4));
    EXPECT_EQ(heard, (std::vector<int>{104}));
}
