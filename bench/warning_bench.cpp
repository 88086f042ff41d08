// Cost of issuing a warning through the warning built-in, disabled and enabled
// with its console output suppressed, against a floor that formats the same
// message, looks its identifier up once and reads the clock; a disabled warning
// among many other states against the same with none; and setting many states
// against inserting their identifiers into a hash map.
#include "bench/ratio_reporter.hpp"

#include "diagnostic/module/entry_points.hpp"
#include "diagnostic/warnings/warning_builtins.hpp"

#include <orrery/interp/virtual_machine.hpp>
#include <orrery/services/services.hpp>
#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>
#include <unordered_map>
#include <vector>

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

// As many distinct identifiers as a large session might give states to.
const std::vector<std::string>& manyIdentifiers() {
    static const std::vector<std::string> identifiers = [] {
        std::vector<std::string> made;
        for (int i = 0; i < 100'000; ++i) made.push_back("ORRERY:many:n" + std::to_string(i));
        return made;
    }();
    return identifiers;
}

// The disabled warning while every one of the many identifiers has a state too.
void warningDisabledManyStates(benchmark::State& state) {
    auto* context = orrery::warning::utGetWarningManagerContext();
    for (const std::string& identifier : manyIdentifiers())
        orrery::warning::utSetWarningStatus(context, identifier, orrery::warning::WarningState::Off);
    issue(state, orrery::warning::WarningState::Off);
    orrery::warning::utSetWarningStatus(context, "all", orrery::warning::WarningState::On);
}

// Its reference: the same disabled warning with no other state set.
void warningDisabledManyStatesFloor(benchmark::State& state) {
    state.SetLabel("warningDisabled, no other states set");
    issue(state, orrery::warning::WarningState::Off);
}

// Gives each of the many identifiers a state, then sets "all", which removes them.
void setWarningStates(benchmark::State& state) {
    auto* context = orrery::warning::utGetWarningManagerContext();
    const auto& identifiers = manyIdentifiers();
    for (auto _ : state) {
        for (const std::string& identifier : identifiers)
            orrery::warning::utSetWarningStatus(context, identifier, orrery::warning::WarningState::Off);
        orrery::warning::utSetWarningStatus(context, "all", orrery::warning::WarningState::On);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(identifiers.size()));
}

// The floor: the same identifiers inserted into a hash map that is then freed.
void setWarningStatesFloor(benchmark::State& state) {
    const auto& identifiers = manyIdentifiers();
    state.SetLabel("inserting the identifiers into a hash map");
    for (auto _ : state) {
        std::unordered_map<std::string, orrery::warning::WarningState> states;
        for (const std::string& identifier : identifiers)
            states.try_emplace(identifier, orrery::warning::WarningState::Off);
        benchmark::DoNotOptimize(states);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(identifiers.size()));
}

void warningDisabledFloor(benchmark::State& state) { floor(state); }
void warningSuppressedFloor(benchmark::State& state) { floor(state); }

}  // namespace

BENCHMARK(warningDisabled)->Repetitions(5);
BENCHMARK(warningDisabledFloor)->Repetitions(5);
BENCHMARK(warningSuppressed)->Repetitions(5);
BENCHMARK(warningSuppressedFloor)->Repetitions(5);
BENCHMARK(warningDisabledManyStates)->Repetitions(5);
BENCHMARK(warningDisabledManyStatesFloor)->Repetitions(5);
BENCHMARK(setWarningStates)->Repetitions(5);
BENCHMARK(setWarningStatesFloor)->Repetitions(5);

int main(int argc, char** argv) {
    // Warnings are issued inside an interpreter instance with the module loaded, as in a session.
    const orrery::interp::VirtualMachineScope machine;
    LxInitialize_diagnostic();
    const int status = orrery::bench::runWithRatios(argc, argv);
    LxTerminate_diagnostic();
    return status;
}
