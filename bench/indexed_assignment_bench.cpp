// Cost of indexed assignment in the language's loops, run by the shell's
// interpreter on script text, against the same loops over a std::vector<double>:
// setting every element of a preallocated row, growing a row by end+1, and
// setting elements of a field and of a vector held in a cell; the first two
// also against CPython running the same loops.
#include "bench/python_peer.hpp"
#include "bench/ratio_reporter.hpp"
#include "bench/script_loop.hpp"

#include "shell/builtins/host_builtins.hpp"

#include <orrery/interp/virtual_machine.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace {

using orrery::bench::runPythonPeer;
using orrery::bench::runScriptLoop;
constexpr std::size_t kCount = orrery::bench::kLoopCount;  // assignments per iteration

// x(k) = k over a row made beforehand, and its floor.
void elementAssignment(benchmark::State& state) { runScriptLoop(state, "x = zeros(1, N); for k = 1:N, x(k) = k; end"); }
void elementFloor(benchmark::State& state) {
    state.SetLabel("the same loop over a std::vector<double>");
    for (auto _ : state) {
        std::vector<double> x(kCount);
        for (std::size_t k = 0; k < kCount; ++k) {
            x[k] = static_cast<double>(k + 1);
            benchmark::ClobberMemory();
        }
        benchmark::DoNotOptimize(x.data());
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * kCount));
}
void elementAssignmentFloor(benchmark::State& state) { elementFloor(state); }
void elementAssignmentPeer(benchmark::State& state) {
    runPythonPeer(state, "x = [0.0] * (N + 1)", "for k in range(1, N + 1): x[k] = k");
}

// x(end + 1) = k from the empty row, and its floor: push_back.
void growthByEnd(benchmark::State& state) { runScriptLoop(state, "x = []; for k = 1:N, x(end + 1) = k; end"); }
void growthByEndFloor(benchmark::State& state) {
    state.SetLabel("push_back onto a std::vector<double>");
    for (auto _ : state) {
        std::vector<double> x;
        for (std::size_t k = 0; k < kCount; ++k) {
            x.push_back(static_cast<double>(k + 1));
            benchmark::ClobberMemory();
        }
        benchmark::DoNotOptimize(x.data());
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * kCount));
}

void growthByEndPeer(benchmark::State& state) {
    runPythonPeer(state, "x = []", "for k in range(1, N + 1): x.append(k)");
}

// s.a(k) = k and c{1}(k) = k: the element lies inside a struct or a cell.
void fieldElementAssignment(benchmark::State& state) {
    runScriptLoop(state, "s.a = zeros(1, N); for k = 1:N, s.a(k) = k; end");
}
void fieldElementAssignmentFloor(benchmark::State& state) { elementFloor(state); }
void cellElementAssignment(benchmark::State& state) {
    runScriptLoop(state, "c = {zeros(1, N)}; for k = 1:N, c{1}(k) = k; end");
}
void cellElementAssignmentFloor(benchmark::State& state) { elementFloor(state); }

}  // namespace

BENCHMARK(elementAssignment)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(elementAssignmentFloor)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(elementAssignmentPeer)->Iterations(1)->Repetitions(3)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(growthByEnd)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(growthByEndFloor)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(growthByEndPeer)->Iterations(1)->Repetitions(3)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(fieldElementAssignment)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(fieldElementAssignmentFloor)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(cellElementAssignment)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(cellElementAssignmentFloor)->Repetitions(3)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    const orrery::interp::VirtualMachineScope machine;
    orrery::shell::registerHostBuiltins();
    return orrery::bench::runWithRatios(argc, argv);
}
