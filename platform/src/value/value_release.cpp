// Freeing a value's data block without recursing into the blocks it holds.
#include "value/value_data.hpp"

#include <type_traits>

namespace orrery::value {
namespace {

using Pending = std::vector<std::shared_ptr<void>>;

// Blocks and object instances whose last reference is being dropped on this
// thread, owned by the outermost release, which frees them one at a time. A
// plain pointer, so that values freed while the thread ends find no destroyed list.
thread_local Pending* active = nullptr;

// Moves a last reference onto the queue; a shared reference only loses a count
// where it is, and without memory for the queue the child is freed in place.
template <class T>
void defer(Pending& pending, std::shared_ptr<T>& owner) noexcept {
    if (owner.use_count() != 1) return;
    try {
        pending.push_back(std::move(owner));
    } catch (...) {
    }
}

}  // namespace

ValueArray::Data::~Data() {
    Pending own;
    Pending& pending = active ? *active : own;
    std::visit(
        [&pending](auto& contents) {
            using S = std::decay_t<decltype(contents)>;
            if constexpr (std::is_same_v<S, CellStore>) {
                for (auto& element : contents.values) defer(pending, element.data_);
            } else if constexpr (std::is_same_v<S, StructStore>) {
                for (auto& field : contents.values)
                    for (auto& element : field)
                        if (element) defer(pending, element->data_);
            } else if constexpr (std::is_same_v<S, ObjectStore>) {
                for (auto& instance : contents.instances) defer(pending, instance);
            }
        },
        store);
    if (active) return;
    active = &own;
    while (!own.empty()) {
        std::shared_ptr<void> next = std::move(own.back());
        own.pop_back();
        next.reset();  // may queue the blocks it holds
    }
    active = nullptr;
}

}  // namespace orrery::value
