// The base of every event that the interpreter's event publisher carries.
#pragma once

#include <orrery/export.hpp>

namespace orrery::events {

/// An event: listeners receive it by reference to this base and find its kind with
/// dynamic_cast. Concrete events derive from it and are copied freely.
class ORRERY_API Event {
public:
    virtual ~Event();

protected:
    Event() = default;
    Event(const Event&) = default;
    Event(Event&&) = default;
    Event& operator=(const Event&) = default;
    Event& operator=(Event&&) = default;
};

}  // namespace orrery::events
