// A console reporter that also prints each benchmark's ratio to its floor.
#pragma once

#include <benchmark/benchmark.h>

#include <unistd.h>
#include <algorithm>
#include <cstdio>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace orrery::bench {

/// Reports as the console reporter does and remembers, per benchmark function, the
/// fastest CPU time per iteration over its repetitions (the least disturbed by
/// other work on the machine). A benchmark "X" is compared with "XFloor", and
/// with "XPeer" when another library does the same work.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    /// Colours only on a terminal, so that scripts read plain lines.
    RatioReporter() : ConsoleReporter(isatty(fileno(stdout)) ? OO_ColorTabular : OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred || run.iterations == 0) continue;
            const double perIteration = run.cpu_accumulated_time / static_cast<double>(run.iterations);
            auto [slot, added] = fastest_.try_emplace(run.run_name.function_name, perIteration);
            if (!added) slot->second = std::min(slot->second, perIteration);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// Prints "ratio NAME VALUE" for every benchmark that has a floor, and "ratio
    /// NAME/peer VALUE" for every one compared with another library's "XPeer";
    /// the lines are what bench/run.sh collects.
    void printRatios() const {
        GetOutputStream().flush();
        for (const auto& [name, seconds] : fastest_) {
            for (const char* against : {"Floor", "Peer"}) {
                const auto other = fastest_.find(name + against);
                if (other == fastest_.end() || other->second <= 0) continue;
                const std::string label = name + (std::string(against) == "Peer" ? "/peer" : "");
                std::printf("ratio %s %.2f (%.0f ns against %.0f ns)\n", label.c_str(), seconds / other->second,
                            seconds * 1e9, other->second * 1e9);
            }
        }
        std::fflush(stdout);
    }

private:
    std::map<std::string, double> fastest_;
};

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
