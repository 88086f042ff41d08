// The events that the warning log publishes for each issued warning.
#pragma once

#include <orrery/events/event.hpp>
#include <orrery/export.hpp>
#include <orrery/lang/warning.hpp>

namespace orrery::events {

/// Published for a warning that was issued while disabled: it was logged but not shown.
class ORRERY_API IssuedWarningEvent : public Event {
public:
    /// Holds a copy of the record.
    explicit IssuedWarningEvent(const lang::diagnostic::Warning& warning);
    ~IssuedWarningEvent() override;
    IssuedWarningEvent(const IssuedWarningEvent&) = default;
    IssuedWarningEvent& operator=(const IssuedWarningEvent&) = default;

    /// The issued warning.
    const lang::diagnostic::Warning& warning() const noexcept { return warning_; }

private:
    lang::diagnostic::Warning warning_;
};

/// Published for a warning that was issued while enabled.
class ORRERY_API IssuedEnabledWarningEvent : public Event {
public:
    /// Holds a copy of the record.
    explicit IssuedEnabledWarningEvent(const lang::diagnostic::Warning& warning);
    ~IssuedEnabledWarningEvent() override;
    IssuedEnabledWarningEvent(const IssuedEnabledWarningEvent&) = default;
    IssuedEnabledWarningEvent& operator=(const IssuedEnabledWarningEvent&) = default;

    /// The issued warning.
    const lang::diagnostic::Warning& warning() const noexcept { return warning_; }

private:
    lang::diagnostic::Warning warning_;
};

}  // namespace orrery::events
