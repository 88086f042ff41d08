// orrery --log-summary: a warning log read back through the module and counted
// per identifier.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orrery::shell::startup {

/// What the summary needs of one logged warning.
struct LoggedWarning {
    std::string identifier;
    bool wasDisabled = false;
    double time = 0;  ///< serial day number, local standard time
};

/// The warnings of one identifier.
struct IdentifierSummary {
    std::string identifier;
    std::size_t count = 0;
    std::size_t disabled = 0;  ///< how many were logged while the identifier was off
    double first = 0;          ///< earliest time
    double last = 0;           ///< latest time
};

/// How the summary is printed.
enum class SummaryFormat { Text, Csv, Json };

/// Reads the log with the module's orrery.internal.diagnostic.log.load. A
/// failure of the reader raises "ORRERY:shell:logSummaryFailed" naming the
/// file, the reader's identifier and its message.
std::vector<LoggedWarning> readLoggedWarnings(const std::string& file);

/// One entry per identifier, by count (most first), then by identifier.
std::vector<IdentifierSummary> summariseWarnings(const std::vector<LoggedWarning>& warnings);

/// The summary as text: an aligned table under a header line (Text), a header
/// line and one row per identifier with RFC 4180 quoting (Csv), or an array of
/// objects (Json). Times are ISO 8601 in local standard time with its offset.
std::string renderSummary(const std::vector<IdentifierSummary>& summary, SummaryFormat format);

/// Reads, summarises and prints the log on standard output.
void printLogSummary(const std::string& file, SummaryFormat format);

}  // namespace orrery::shell::startup
