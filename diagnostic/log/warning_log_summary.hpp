// A warning log counted per identifier, with each identifier's warnings spread
// over the log's time span, read without building records.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orrery::lang::diagnostic {

/// The warnings of one identifier in a log.
struct IdentifierTally {
    std::string identifier;
    std::size_t count = 0;
    std::size_t disabled = 0;  ///< how many were logged while off
    double first = 0;          ///< earliest time (serial day number)
    double last = 0;           ///< latest time
    /// How many fell into each of equal parts of the span from the log's
    /// earliest to its latest time (all in the first part when they are equal).
    std::vector<double> timeline;
};

/// Reads the log twice through visitWarningLog (counts and span, then the
/// timeline's parts), so memory grows with the number of identifiers only.
/// Identifiers come in the order of their first warning. Raises as
/// readWarningLog does.
std::vector<IdentifierTally> summariseWarningLog(const std::u16string& fileName, std::size_t parts);

}  // namespace orrery::lang::diagnostic
