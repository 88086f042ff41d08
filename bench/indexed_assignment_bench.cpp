// Cost of indexed assignment in the language's loops, run by the shell's
// interpreter on script text, against the same loops over a std::vector<double>:
// setting every element of a preallocated row, growing a row by end+1, and
// setting elements of a field and of a vector held in a cell.
#include "bench/ratio_reporter.hpp"

#include "shell/builtins/host_builtins.hpp"
#include "shell/eval/interpreter.hpp"
#include "shell/lang/parser.hpp"

#include <orrery/interp/virtual_machine.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kCount = 100000;  // assignments per iteration

// Runs the loop text (with N standing for kCount) once per iteration.
void runScript(benchmark::State& state, const std::string& text) {
    std::string source = text;
    for (auto at = source.find('N'); at != std::string::npos; at = source.find('N'))
        source.replace(at, 1, std::to_string(kCount));
    const auto program = orrery::shell::lang::parse(source, u"bench.orr");
    orrery::shell::eval::Interpreter interpreter;
    for (auto _ : state) interpreter.run(program, u"bench.orr", u"");
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * kCount));
}

// x(k) = k over a row made beforehand, and its floor.
void elementAssignment(benchmark::State& state) { runScript(state, "x = zeros(1, N); for k = 1:N, x(k) = k; end"); }
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

// x(end + 1) = k from the empty row, and its floor: push_back.
void growthByEnd(benchmark::State& state) { runScript(state, "x = []; for k = 1:N, x(end + 1) = k; end"); }
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

// s.a(k) = k and c{1}(k) = k: the element lies inside a struct or a cell.
void fieldElementAssignment(benchmark::State& state) {
    runScript(state, "s.a = zeros(1, N); for k = 1:N, s.a(k) = k; end");
}
void fieldElementAssignmentFloor(benchmark::State& state) { elementFloor(state); }
void cellElementAssignment(benchmark::State& state) {
    runScript(state, "c = {zeros(1, N)}; for k = 1:N, c{1}(k) = k; end");
}
void cellElementAssignmentFloor(benchmark::State& state) { elementFloor(state); }

}  // namespace

BENCHMARK(elementAssignment)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(elementAssignmentFloor)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(growthByEnd)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(growthByEndFloor)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(fieldElementAssignment)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(fieldElementAssignmentFloor)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(cellElementAssignment)->Repetitions(3)->Unit(benchmark::kMillisecond);
BENCHMARK(cellElementAssignmentFloor)->Repetitions(3)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    const orrery::interp::VirtualMachineScope machine;
    orrery::shell::registerHostBuiltins();
    return orrery::bench::runWithRatios(argc, argv);
}
