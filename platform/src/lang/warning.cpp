// The warning record: its time stamp and its comparison.
#include <orrery/lang/warning.hpp>

#include <orrery/interp/dates.hpp>

#include <compare>

namespace orrery::lang::diagnostic {
namespace {

// The one ordering behind ==, != and <. Keys, most significant first: time (so
// that sorting puts warnings in their order of issue), identifier (bytewise),
// message, format (by code unit), arguments (lexicographically; an argument by
// its kind, then its value), stack (lexicographically; a frame by file, name,
// line), and last the disabled flag (enabled first). Doubles, the time and double
// arguments, are ordered by std::weak_order: every number in its place with -0
// equivalent to 0, NaNs of one sign equivalent to each other and outside all
// numbers. Every field is a key, so records that are equivalent are equal.
std::weak_ordering compareRecords(const Warning& a, const Warning& b) {
    if (const auto order = std::weak_order(a.getTime(), b.getTime()); order != 0) return order;
    if (const auto order = a.getIdentifier() <=> b.getIdentifier(); order != 0) return order;
    if (const auto order = a.getMessage() <=> b.getMessage(); order != 0) return order;
    if (const auto order = a.getFormat() <=> b.getFormat(); order != 0) return order;
    if (const auto order = a.getArguments() <=> b.getArguments(); order != 0) return order;
    if (const auto order = a.getStack() <=> b.getStack(); order != 0) return order;
    return a.getWasDisabled() <=> b.getWasDisabled();
}

}  // namespace

void Warning::timestamp() { time_ = interp::nowSerial(); }

bool Warning::operator==(const Warning& other) const { return compareRecords(*this, other) == 0; }

bool Warning::operator!=(const Warning& other) const { return !(*this == other); }

bool Warning::operator<(const Warning& other) const { return compareRecords(*this, other) < 0; }

}  // namespace orrery::lang::diagnostic
