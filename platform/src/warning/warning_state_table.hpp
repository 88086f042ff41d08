// The warning manager's table of identifiers' own states.
#pragma once

#include <orrery/text/text_hash.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <boost/multi_index/hashed_index.hpp>
#include <boost/multi_index/member.hpp>
#include <boost/multi_index/sequenced_index.hpp>
#include <boost/multi_index_container.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace orrery::warning {

/// The identifiers that have a state of their own, each with its state. Finding
/// an identifier's state hashes it once and scans nothing; iteration follows the
/// order in which identifiers were first given a state; the count is kept.
/// Memory is proportional to the number of identifiers held.
class WarningStateTable {
public:
    /// The identifier's own state, or null when it has none. The pointer is valid
    /// until the table next changes.
    const WarningState* find(std::string_view identifier) const;
    /// Gives the identifier its own state; an identifier new to the table goes last
    /// in the iteration order, one already there keeps its place.
    void set(std::string_view identifier, WarningState state);
    /// Removes every identifier and gives back the memory the table held for them,
    /// in time proportional to their number.
    void clear();
    /// The number of identifiers with a state of their own.
    std::size_t size() const noexcept { return entries_.size(); }
    /// Calls visit(identifier, state) for every identifier, in the order they were
    /// first given a state.
    void forEach(const std::function<void(const std::string&, WarningState)>& visit) const;

private:
    struct Entry {
        std::string identifier;
        // Not part of the key, so it may change in place without re-indexing.
        mutable WarningState state;
    };

    using Entries = boost::multi_index_container<
        Entry, boost::multi_index::indexed_by<
                   boost::multi_index::sequenced<>,
                   boost::multi_index::hashed_unique<boost::multi_index::member<Entry, std::string, &Entry::identifier>,
                                                     text::TextHash>>>;

    Entries entries_;
};

}  // namespace orrery::warning
