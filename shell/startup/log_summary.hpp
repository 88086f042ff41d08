// orrery --log-summary: a warning log counted per identifier by the module,
// without loading its warnings.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orrery::shell::startup {

/// The warnings of one identifier.
struct IdentifierSummary {
    std::string identifier;
    std::size_t count = 0;
    std::size_t disabled = 0;  ///< how many were logged while the identifier was off
    double first = 0;          ///< earliest time
    double last = 0;           ///< latest time
    /// How many fell into each equal part of the log's time span.
    std::vector<double> timeline;
};

/// How the summary is printed.
enum class SummaryFormat { Text, Csv, Json };

/// Counts the log with the module's orrery.internal.diagnostic.log.summary,
/// one entry per identifier (orderSummary's order). A failure of the reader
/// raises "ORRERY:shell:logSummaryFailed" naming the file, the reader's
/// identifier and its message.
std::vector<IdentifierSummary> readLogSummary(const std::string& file);

/// Puts the entries in order: by count (most first), then by identifier.
void orderSummary(std::vector<IdentifierSummary>& summary);

/// The timeline as block characters, one per part, scaled to its largest part
/// (a blank for a part with none), e.g. "▁▂▅█▃".
std::string timelineBlocks(const std::vector<double>& timeline);

/// The summary as text: an aligned table under a header line, with each
/// identifier's timeline (Text), a header line and one row per identifier with
/// RFC 4180 quoting (Csv), or an array of objects with the timeline's counts
/// (Json). Times are ISO 8601 in local standard time with its offset. Every
/// line ends with a line feed.
std::string renderSummary(const std::vector<IdentifierSummary>& summary, SummaryFormat format);

/// Reads, summarises and prints the log on standard output.
void printLogSummary(const std::string& file, SummaryFormat format);

}  // namespace orrery::shell::startup
