// Freeing a value's data block without recursing into the blocks it holds.
#include "value/value_data.hpp"

#include <variant>

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
    if (auto* cells = std::get_if<CellStore>(&store)) {
        for (auto& element : cells->values) defer(pending, element.data_);
    } else if (auto* structs = std::get_if<StructStore>(&store)) {
        for (auto& field : structs->values)
            for (auto& element : field)
                if (element) defer(pending, element->data_);
    } else if (auto* objects = std::get_if<ObjectStore>(&store)) {
        for (auto& instance : objects->instances) defer(pending, instance);
    }
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
