// The warning manager's table of identifiers' own states: a sequence in the order
// of first setting, indexed by a hash of the identifier.
#include "warning/warning_state_table.hpp"

namespace orrery::warning {
namespace {

// Positions of the table's two views: the sequence, then the hash index.
constexpr int kInOrder = 0;
constexpr int kByIdentifier = 1;

}  // namespace

const WarningState* WarningStateTable::find(std::string_view identifier) const {
    const auto& byIdentifier = entries_.get<kByIdentifier>();
    const auto found = byIdentifier.find(identifier, text::TextHash{}, std::equal_to<>{});
    return found == byIdentifier.end() ? nullptr : &found->state;
}

void WarningStateTable::set(std::string_view identifier, WarningState state) {
    // Inserting through the hash index hashes once and appends to the sequence;
    // an identifier already there keeps its place and takes the new state.
    const auto [entry, added] = entries_.get<kByIdentifier>().emplace(Entry{std::string(identifier), state});
    if (!added) entry->state = state;
}

void WarningStateTable::clear() {
    // A container's own clear keeps its bucket array; a fresh one gives it back too.
    Entries().swap(entries_);
}

void WarningStateTable::forEach(const std::function<void(const std::string&, WarningState)>& visit) const {
    for (const Entry& entry : entries_.get<kInOrder>()) visit(entry.identifier, entry.state);
}

}  // namespace orrery::warning
