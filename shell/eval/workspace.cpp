// Workspace variables in slots.
#include "shell/eval/workspace.hpp"

#include <algorithm>
#include <atomic>
#include <new>

namespace orrery::shell::eval {

std::uint64_t nextIdentity() {
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

SlotLayout::SlotLayout() : identity_(nextIdentity()) {}

std::uint32_t SlotLayout::slotOf(std::string_view name) {
    if (const auto found = slots_.find(name); found != slots_.end()) return found->second;
    const auto slot = static_cast<std::uint32_t>(names_.size());
    names_.emplace_back(name);
    slots_.emplace(names_.back(), slot);
    return slot;
}

std::optional<std::uint32_t> SlotLayout::find(std::string_view name) const {
    const auto found = slots_.find(name);
    if (found == slots_.end()) return std::nullopt;
    return found->second;
}

SlotLayout::Storage SlotLayout::takeStorage() {
    if (spare_.empty()) return {};
    Storage storage = std::move(spare_.back());
    spare_.pop_back();
    return storage;
}

void SlotLayout::giveBack(Storage storage) noexcept {
    // a few kept are enough for calls in a loop; deep recursion keeps no more
    constexpr std::size_t kMostSpare = 8;
    if (spare_.size() >= kMostSpare) return;
    storage.clear();
    try {
        spare_.push_back(std::move(storage));
    } catch (const std::bad_alloc&) {
        // kept nowhere: the next call allocates its own
    }
}

Workspace::Workspace() : own_(std::make_unique<SlotLayout>()), layout_(own_.get()) {}

Workspace::Workspace(SlotLayout& layout) : layout_(&layout), values_(layout.takeStorage()) {}

Workspace::~Workspace() { layout_->giveBack(std::move(values_)); }

const value::ValueArray* Workspace::find(std::string_view name) const {
    const auto slot = layout_->find(name);
    return slot ? at(*slot) : nullptr;
}

value::ValueArray* Workspace::findMutable(std::string_view name) {
    const auto slot = layout_->find(name);
    return slot ? mutableAt(*slot) : nullptr;
}

void Workspace::set(std::string_view name, value::ValueArray value) { setAt(layout_->slotOf(name), std::move(value)); }

void Workspace::erase(std::string_view name) {
    const auto slot = layout_->find(name);
    if (slot && *slot < values_.size()) values_[*slot].reset();
}

std::vector<std::string> Workspace::names() const {
    std::vector<std::string> result;
    for (std::uint32_t slot = 0; slot < values_.size(); ++slot)
        if (values_[slot]) result.push_back(layout_->nameOf(slot));
    std::sort(result.begin(), result.end());
    return result;
}

std::uint32_t Workspace::slot(std::string_view name, lang::SlotMemo& memo) {
    if (memo.layout != layout_->identity()) memo = {layout_->identity(), layout_->slotOf(name)};
    return memo.slot;
}

void Workspace::setNew(std::uint32_t slot, value::ValueArray value) {
    if (slot >= values_.size()) values_.resize(layout_->size());
    values_[slot].emplace(std::move(value));
}

}  // namespace orrery::shell::eval
