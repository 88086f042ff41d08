// A peer that runs the same loop in CPython: python3 times the loop itself
// (process time, the fastest of several runs) and the benchmark reports that
// time as its own, so the row compares one pass of our loop with one of its.
// Without python3 (or with another implementation of the language) the
// benchmark is skipped and its row left out.
#pragma once

#include "bench/script_loop.hpp"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <sstream>
#include <string>

namespace orrery::bench {

/// Runs `loop` (Python statements inside a def, with N standing for
/// kLoopCount and `setup` run first in the same def) and reports its time per
/// iteration. Register with UseManualTime().
inline void runPythonPeer(benchmark::State& state, const std::string& setup, const std::string& loop) {
    // The program's text holds no single quote, so the shell passes it unchanged.
    const std::string program =
        "import platform, time\n"
        "def run():\n"
        "    " +
        withLoopCount(setup) +
        "\n"
        "    " +
        withLoopCount(loop) +
        "\n"
        "best = None\n"
        "for _ in range(7):\n"
        "    start = time.process_time_ns()\n"
        "    run()\n"
        "    spent = time.process_time_ns() - start\n"
        "    best = spent if best is None or spent < best else best\n"
        "print(platform.python_implementation(), platform.python_version(), best)\n";
    const std::string command = "python3 -c '" + program + "' 2>/dev/null";
    std::string implementation, version;
    double nanoseconds = 0;
    {
        const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
        char line[256] = {};
        if (pipe && std::fgets(line, sizeof line, pipe.get()) != nullptr)
            std::istringstream(line) >> implementation >> version >> nanoseconds;
    }
    if (implementation != "CPython" || nanoseconds <= 0) {
        state.SkipWithError("python3 (CPython) is not available");
        for (auto _ : state) {
        }
        return;
    }
    state.SetLabel("CPython " + version + ", the same loop in a def");
    for (auto _ : state) state.SetIterationTime(nanoseconds * 1e-9);
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * kLoopCount));
}

}  // namespace orrery::bench
