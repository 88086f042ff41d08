// The variables of one workspace: the base workspace of a script or the
// prompt, or the private workspace of one function call.
#pragma once

#include "shell/lang/ast.hpp"

#include <orrery/value/value_array.hpp>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orrery::shell::eval {

/// A number not handed out before in this process: the identity of a slot layout
/// or a version of an interpreter's script functions, as the tree's memos keep them.
std::uint64_t nextIdentity();

/// The names a workspace's variables can have, each with the slot it lives in.
/// Every call of one function shares the function's layout, so a name that a
/// statement resolved once is the same slot in every later call. A layout only
/// grows; a name with a slot but no value is not a variable.
class SlotLayout {
public:
    SlotLayout();
    SlotLayout(const SlotLayout&) = delete;
    SlotLayout& operator=(const SlotLayout&) = delete;

    /// The name's slot, added when the name has none yet.
    std::uint32_t slotOf(std::string_view name);
    /// The name's slot, if it has one.
    std::optional<std::uint32_t> find(std::string_view name) const;
    const std::string& nameOf(std::uint32_t slot) const { return names_[slot]; }
    std::size_t size() const { return names_.size(); }
    /// Different for every layout a process makes, so that a slot remembered
    /// together with it can never be read in another layout.
    std::uint64_t identity() const { return identity_; }

    using Storage = std::vector<std::optional<value::ValueArray>>;
    /// Slot storage left by an ended workspace of this layout, empty but with
    /// its capacity, or a new one: a function call does not allocate its slots.
    Storage takeStorage();
    void giveBack(Storage storage) noexcept;

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
    };
    std::uint64_t identity_;
    std::vector<std::string> names_;
    std::unordered_map<std::string, std::uint32_t, Hash, std::equal_to<>> slots_;
    std::vector<Storage> spare_;
};

/// Named values kept in slots. Assignment stores a shared copy (the language's
/// value semantics).
class Workspace {
public:
    /// A workspace with a layout of its own.
    Workspace();
    /// A workspace in a layout shared with others (the calls of one function),
    /// which must outlive it.
    explicit Workspace(SlotLayout& layout);
    ~Workspace();
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    /// The variable's value, or null when there is no such variable.
    const value::ValueArray* find(std::string_view name) const;
    /// The variable's value for changing where it lies, or null.
    value::ValueArray* findMutable(std::string_view name);
    bool contains(std::string_view name) const { return find(name) != nullptr; }
    void set(std::string_view name, value::ValueArray value);
    /// Removes the variable if present.
    void erase(std::string_view name);
    /// Variable names in alphabetical order.
    std::vector<std::string> names() const;

    /// The name's slot in this workspace's layout, taken from the memo when it
    /// was made for this layout, else resolved (and added) and remembered.
    std::uint32_t slot(std::string_view name, lang::SlotMemo& memo);
    const value::ValueArray* at(std::uint32_t slot) const {
        return slot < values_.size() && values_[slot] ? &*values_[slot] : nullptr;
    }
    value::ValueArray* mutableAt(std::uint32_t slot) {
        return slot < values_.size() && values_[slot] ? &*values_[slot] : nullptr;
    }
    void setAt(std::uint32_t slot, value::ValueArray value) {
        if (slot < values_.size() && values_[slot]) {
            *values_[slot] = std::move(value);
            return;
        }
        setNew(slot, std::move(value));
    }

private:
    void setNew(std::uint32_t slot, value::ValueArray value);

    std::unique_ptr<SlotLayout> own_;  // the layout, when it is this workspace's own
    SlotLayout* layout_;
    SlotLayout::Storage values_;
};

}  // namespace orrery::shell::eval
