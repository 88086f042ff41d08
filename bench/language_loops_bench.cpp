// The evaluator's cost per pass of plain language loops against CPython running
// the same loops: scalar arithmetic on a variable, and a call of a one-line
// function.
#include "bench/python_peer.hpp"
#include "bench/ratio_reporter.hpp"
#include "bench/script_loop.hpp"

#include "shell/builtins/host_builtins.hpp"

#include <orrery/interp/virtual_machine.hpp>

namespace {

using orrery::bench::runPythonPeer;
using orrery::bench::runScriptLoop;

// y = y + k
void scalarArithmetic(benchmark::State& state) { runScriptLoop(state, "y = 0; for k = 1:N, y = y + k; end"); }
void scalarArithmeticPeer(benchmark::State& state) {
    runPythonPeer(state, "y = 0", "for k in range(1, N + 1): y = y + k");
}

// y = f(k) with a one-line function
void functionCall(benchmark::State& state) {
    runScriptLoop(state,
                  "for k = 1:N, y = f(k); end\n"
                  "function y = f(x)\n"
                  "    y = x + 1;\n"
                  "end\n");
}
void functionCallPeer(benchmark::State& state) {
    runPythonPeer(state, "def f(x): return x + 1", "for k in range(1, N + 1): y = f(k)");
}

}  // namespace

BENCHMARK(scalarArithmetic)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(scalarArithmeticPeer)->Iterations(1)->Repetitions(3)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(functionCall)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(functionCallPeer)->Iterations(1)->Repetitions(3)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    const orrery::interp::VirtualMachineScope machine;
    orrery::shell::registerHostBuiltins();
    return orrery::bench::runWithRatios(argc, argv);
}
