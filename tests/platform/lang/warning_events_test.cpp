// Tests of the warning events as a listener receives them from a publisher.
#include <orrery/events/event_publisher.hpp>
#include <orrery/events/warning_events.hpp>

#include <gtest/gtest.h>

#include <optional>

using orrery::events::Event;
using orrery::events::EventPublisher;
using orrery::events::IssuedEnabledWarningEvent;
using orrery::events::IssuedWarningEvent;
using orrery::lang::diagnostic::Warning;

TEST(WarningEvents, AListenerTellsTheTwoEventsApartAndReadsTheRecord) {
    EventPublisher publisher;
    std::optional<Warning> enabled;
    std::optional<Warning> disabled;
    const auto connection = publisher.subscribe([&](const Event& event) {
        if (const auto* e = dynamic_cast<const IssuedEnabledWarningEvent*>(&event)) enabled = e->warning();
        if (const auto* e = dynamic_cast<const IssuedWarningEvent*>(&event)) disabled = e->warning();
    });
    Warning shown;
    shown.setIdentifier("a:shown");
    Warning hidden;
    hidden.setIdentifier("a:hidden");
    hidden.setWasDisabled(true);

    const IssuedEnabledWarningEvent event(shown);
    shown.setIdentifier("a:changed");  // the event holds its own copy
    publisher.publish(event);
    ASSERT_TRUE(enabled.has_value());
    EXPECT_EQ(enabled->getIdentifier(), "a:shown");
    EXPECT_FALSE(disabled.has_value());

    publisher.publish(IssuedWarningEvent(hidden));
    ASSERT_TRUE(disabled.has_value());
    EXPECT_EQ(*disabled, hidden);
}
