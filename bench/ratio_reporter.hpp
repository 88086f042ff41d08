// A console reporter that also prints, for each benchmark, one row comparing it
// with its reference: the ratio of our cost over the reference's, and both figures.
#pragma once

#include <benchmark/benchmark.h>

#include <unistd.h>
#include <cstdio>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace orrery::bench {

/// A figure with three significant digits and no exponent (1234, 12.3, 0.12).
inline std::string threeFigures(double value) {
    char text[32];
    std::snprintf(text, sizeof text, value >= 100 ? "%.0f" : value >= 10 ? "%.1f" : "%.2f", value);
    return text;
}

/// Prints a row "ratio<TAB>benchmark<TAB>reference<TAB>ratio<TAB>ours<TAB>reference's
/// figure", the form bench/run.sh reads.
inline void printRow(const std::string& benchmark, const std::string& reference, double ratio, const std::string& ours,
                     const std::string& theirs) {
    std::printf("ratio\t%s\t%s\t%.2f\t%s\t%s\n", benchmark.c_str(), reference.c_str(), ratio, ours.c_str(),
                theirs.c_str());
}

/// Reports as the console reporter does and remembers, per benchmark function, the
/// repetition with the fastest time per iteration (the least disturbed by other
/// work on the machine): CPU time, or real time for a benchmark that uses it. A benchmark "X" is compared with
/// "XFloor", and with "XPeer" when another library does the same work; the floor or peer says what it is with
/// `state.SetLabel("...")`, and that text names the reference in the row.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    /// Colours only on a terminal, so that scripts read plain lines.
    RatioReporter() : ConsoleReporter(isatty(fileno(stdout)) ? OO_ColorTabular : OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred || run.iterations == 0) continue;
            const Fastest candidate = fastestOf(run);
            auto [slot, added] = fastest_.try_emplace(run.run_name.function_name, candidate);
            if (!added && candidate.seconds < slot->second.seconds) slot->second = candidate;
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// Prints one row per benchmark that has a floor or a peer; the rows are what
    /// bench/run.sh collects. The ratio is always our time over the reference's for
    /// the same work, so lower is better, 1.00 is parity, and for a throughput
    /// benchmark it is the inverse of the throughputs' ratio.
    void printRatios() const {
        GetOutputStream().flush();
        for (const auto& [name, ours] : fastest_) {
            for (const std::string against : {"Floor", "Peer"}) {
                const auto other = fastest_.find(name + against);
                if (other == fastest_.end() || other->second.seconds <= 0) continue;
                const Fastest& reference = other->second;
                std::string words = reference.label.empty() ? other->first : reference.label;
                if (against == "Peer") words = "peer: " + words;
                printRow(name, words, ours.seconds / reference.seconds, ours.figure(), reference.figure());
            }
        }
        std::fflush(stdout);
    }

private:
    /// One repetition's cost per iteration, with what an iteration processes.
    struct Fastest {
        double seconds = 0;            // time per iteration
        double bytesPerIteration = 0;  // from SetBytesProcessed, 0 if not set
        double itemsPerIteration = 0;  // from SetItemsProcessed, 0 if not set
        std::string label;

        /// MB/s for a benchmark of bytes, else the time per item for one of items or
        /// per iteration, in ns, us, ms or s.
        std::string figure() const {
            if (bytesPerIteration > 0) return threeFigures(bytesPerIteration / seconds / 1e6) + " MB/s";
            const double perOperation = seconds / (itemsPerIteration > 0 ? itemsPerIteration : 1);
            static constexpr std::pair<double, const char*> kUnits[] = {
                {1e-6, " ns/op"}, {1e-3, " us/op"}, {1.0, " ms/op"}};
            for (const auto& [scale, unit] : kUnits)
                if (perOperation < scale) return threeFigures(perOperation * 1e3 / scale) + unit;
            return threeFigures(perOperation) + " s/op";
        }
    };

    static Fastest fastestOf(const Run& run) {
        Fastest fastest;
        // CPU time, unless the benchmark asks for real or manual time (as one that
        // waits for a device must); the rate counters are per second of the same time.
        const bool wallClock = !run.run_name.time_type.empty();
        const double accumulated = wallClock ? run.real_accumulated_time : run.cpu_accumulated_time;
        fastest.seconds = accumulated / static_cast<double>(run.iterations);
        fastest.label = run.report_label;
        const auto perIteration = [&](const char* counter) {
            const auto found = run.counters.find(counter);
            return found == run.counters.end() ? 0.0 : found->second.value * fastest.seconds;
        };
        fastest.bytesPerIteration = perIteration("bytes_per_second");
        fastest.itemsPerIteration = perIteration("items_per_second");
        return fastest;
    }

    std::map<std::string, Fastest> fastest_;
};

/// Prints the row of a load's peak heap use against the size of the file it read.
inline void printPeakHeapRow(const std::string& benchmark, long long peakBytes, long long fileBytes) {
    printRow(benchmark + " peak heap", "size of the file read",
             static_cast<double>(peakBytes) / static_cast<double>(fileBytes), threeFigures(peakBytes / 1e6) + " MB",
             threeFigures(fileBytes / 1e6) + " MB");
    std::fflush(stdout);
}

/// The main of a benchmark program: runs everything, then prints the ratios.
inline int runWithRatios(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    benchmark::Shutdown();
    return 0;
}

}  // namespace orrery::bench
