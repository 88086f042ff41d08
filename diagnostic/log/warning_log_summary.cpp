// A warning log counted per identifier, with a timeline, read without records.
#include "diagnostic/log/warning_log_summary.hpp"

#include "diagnostic/log/warning_log_reader.hpp"

#include <orrery/text/text_hash.hpp>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <string_view>
#include <unordered_map>

namespace orrery::lang::diagnostic {
namespace {

/// The tallies of a log and where each identifier's tally is.
class Tallies {
public:
    IdentifierTally& of(std::string_view identifier) {
        if (const auto found = index_.find(identifier); found != index_.end()) return tallies_[found->second];
        index_.emplace(std::string(identifier), tallies_.size());
        IdentifierTally& tally = tallies_.emplace_back();
        tally.identifier = identifier;
        return tally;
    }
    std::vector<IdentifierTally>& all() noexcept { return tallies_; }

private:
    std::vector<IdentifierTally> tallies_;
    std::unordered_map<std::string, std::size_t, text::TextHash, std::equal_to<>> index_;
};

}  // namespace

std::vector<IdentifierTally> summariseWarningLog(const std::u16string& fileName, std::size_t parts) {
    Tallies tallies;
    double start = std::numeric_limits<double>::infinity();
    double end = -start;
    visitWarningLog(fileName, [&](std::string_view identifier, bool wasDisabled, double time) {
        IdentifierTally& tally = tallies.of(identifier);
        tally.first = tally.count == 0 ? time : std::min(tally.first, time);
        tally.last = tally.count == 0 ? time : std::max(tally.last, time);
        ++tally.count;
        if (wasDisabled) ++tally.disabled;
        start = std::min(start, time);
        end = std::max(end, time);
    });
    for (IdentifierTally& tally : tallies.all()) tally.timeline.assign(parts, 0);
    if (parts == 0 || tallies.all().empty()) return std::move(tallies.all());
    // Warnings appended between the two readings fall into the last part.
    const double span = end - start;
    visitWarningLog(fileName, [&](std::string_view identifier, bool /*wasDisabled*/, double time) {
        const double position = span > 0 ? (time - start) / span * static_cast<double>(parts) : 0;
        const auto part = static_cast<std::size_t>(std::clamp(position, 0.0, static_cast<double>(parts - 1)));
        IdentifierTally& tally = tallies.of(identifier);
        if (tally.timeline.size() == parts) tally.timeline[part] += 1;
    });
    return std::move(tallies.all());
}

}  // namespace orrery::lang::diagnostic
