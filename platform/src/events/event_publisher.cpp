// The event publisher, its listener list and the subscriptions into it.
#include <orrery/events/event_publisher.hpp>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

namespace orrery::events {

/// The listeners of one publisher, shared with the subscriptions through weak handles.
class ListenerList {
public:
    struct Entry {
        Entry(std::uint64_t entryId, EventPublisher::Listener entryListener)
            : id(entryId), listener(std::move(entryListener)) {}
        const std::uint64_t id;
        const EventPublisher::Listener listener;
        std::atomic<bool> subscribed{true};
    };
    using Entries = std::vector<std::shared_ptr<Entry>>;

    std::uint64_t add(EventPublisher::Listener listener) {
        const std::lock_guard lock(mutex_);
        const std::uint64_t id = nextId_++;
        entries_.push_back(std::make_shared<Entry>(id, std::move(listener)));
        return id;
    }

    void remove(std::uint64_t id) noexcept {
        const std::lock_guard lock(mutex_);
        const auto found = std::find_if(entries_.begin(), entries_.end(), [id](const auto& e) { return e->id == id; });
        if (found == entries_.end()) return;
        (*found)->subscribed = false;
        entries_.erase(found);
    }

    bool contains(std::uint64_t id) const {
        const std::lock_guard lock(mutex_);
        return std::any_of(entries_.begin(), entries_.end(), [id](const auto& e) { return e->id == id; });
    }

    // A copy, so that listeners may subscribe and unsubscribe while it is walked.
    Entries snapshot() const {
        const std::lock_guard lock(mutex_);
        return entries_;
    }

    std::size_t size() const {
        const std::lock_guard lock(mutex_);
        return entries_.size();
    }

private:
    mutable std::mutex mutex_;
    Entries entries_;
    std::uint64_t nextId_ = 1;
};

// ---- Subscription ----------------------------------------------------------

Subscription::Subscription(std::weak_ptr<ListenerList> list, std::uint64_t id) noexcept
    : list_(std::move(list)), id_(id) {}

Subscription::~Subscription() { reset(); }

Subscription::Subscription(Subscription&& other) noexcept
    : list_(std::exchange(other.list_, {})), id_(std::exchange(other.id_, 0)) {}

Subscription& Subscription::operator=(Subscription&& other) noexcept {
    if (this != &other) {
        reset();
        list_ = std::exchange(other.list_, {});
        id_ = std::exchange(other.id_, 0);
    }
    return *this;
}

void Subscription::reset() noexcept {
    if (const auto list = list_.lock()) list->remove(id_);
    list_.reset();
    id_ = 0;
}

bool Subscription::active() const noexcept {
    const auto list = list_.lock();
    return list != nullptr && list->contains(id_);
}

// ---- EventPublisher --------------------------------------------------------

EventPublisher::EventPublisher() : listeners_(std::make_shared<ListenerList>()) {}

EventPublisher::~EventPublisher() = default;

Subscription EventPublisher::subscribe(Listener listener) {
    const std::uint64_t id = listeners_->add(std::move(listener));
    return Subscription(listeners_, id);
}

void EventPublisher::publish(const Event& event) const {
    for (const auto& entry : listeners_->snapshot()) {
        if (entry->subscribed && entry->listener) entry->listener(event);
    }
}

std::size_t EventPublisher::listenerCount() const { return listeners_->size(); }

}  // namespace orrery::events
