// Cost of issuing a warning through the warning built-in, disabled and enabled
// with its console output suppressed, against a floor that formats the same
// message, looks its identifier up once and reads the clock.
#include "bench/ratio_reporter.hpp"

#include "diagnostic/module/entry_points.hpp"
#include "diagnostic/warnings/warning_builtins.hpp"

#include <orrery/interp/virtual_machine.hpp>
#include <orrery/services/services.hpp>
#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <chrono>
#include <cstdio>
#include <string>
#include <unordered_map>

namespace {

using orrery::value::ValueArray;

constexpr const char* kIdentifier = "ORRERY:bench:x";

// warning('ORRERY:bench:x', 'value %d', 42) with the identifier in the given state.
void issue(benchmark::State& state, orrery::warning::WarningState warningState) {
    auto* context = orrery::warning::utGetWarningManagerContext();
    orrery::warning::utSetWarningStatus(context, kIdentifier, warningState);
    const ValueArray inputs[] = {ValueArray::charsFromUtf8(kIdentifier), ValueArray::charsFromUtf8("value %d"),
                                 ValueArray::scalar(42)};
    const ValueArray* const pointers[] = {&inputs[0], &inputs[1], &inputs[2]};
    orrery::value::ValueArrayPtr slot;
    for (auto _ : state) {
        bnFullWarningFcn(0, &slot, 3, pointers);
        benchmark::ClobberMemory();
    }
    orrery::warning::utSetWarningStatus(context, kIdentifier, orrery::warning::WarningState::On);
}

void warningDisabled(benchmark::State& state) { issue(state, orrery::warning::WarningState::Off); }

void warningSuppressed(benchmark::State& state) {
    orrery::services::svSetFeature("SuppressCommandLineOutput", true);
    issue(state, orrery::warning::WarningState::On);
    orrery::services::svUnregisterFeature("SuppressCommandLineOutput");
}

// The floor: the message formatted with snprintf, one hash-map lookup of the
// identifier and one reading of the clock.
void floor(benchmark::State& state) {
    const std::unordered_map<std::string, int> states{{kIdentifier, 0}, {"ORRERY:bench:y", 1}};
    const std::string identifier = kIdentifier;
    char message[64];
    state.SetLabel("snprintf of the message, one hash lookup, one clock reading");
    for (auto _ : state) {
        std::snprintf(message, sizeof message, "value %d", 42);
        benchmark::DoNotOptimize(states.find(identifier));
        benchmark::DoNotOptimize(std::chrono::system_clock::now());
        benchmark::DoNotOptimize(message);
    }
}

void warningDisabledFloor(benchmark::State& state) { floor(state); }
void warningSuppressedFloor(benchmark::State& state) { floor(state); }

}  // namespace

BENCHMARK(warningDisabled)->Repetitions(5);
BENCHMARK(warningDisabledFloor)->Repetitions(5);
BENCHMARK(warningSuppressed)->Repetitions(5);
BENCHMARK(warningSuppressedFloor)->Repetitions(5);

int main(int argc, char** argv) {
    // Warnings are issued inside an interpreter instance with the module loaded, as in a session.
    const orrery::interp::VirtualMachineScope machine;
    LxInitialize_diagnostic();
    const int status = orrery::bench::runWithRatios(argc, argv);
    LxTerminate_diagnostic();
    return status;
}
