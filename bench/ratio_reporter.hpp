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
/// other work on the machine). A benchmark "X" is compared with "XFloor".
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

    /// Prints "ratio NAME VALUE" for every benchmark that has a floor; the lines
    /// are what bench/run.sh collects.
    void printRatios() const {
        GetOutputStream().flush();
        for (const auto& [name, seconds] : fastest_) {
            const auto floor = fastest_.find(name + "Floor");
            if (floor == fastest_.end() || floor->second <= 0) continue;
            std::printf("ratio %s %.2f (%.0f ns against %.0f ns)\n", name.c_str(), seconds / floor->second,
                        seconds * 1e9, floor->second * 1e9);
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
