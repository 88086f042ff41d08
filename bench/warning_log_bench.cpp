// Cost of issuing a disabled warning through the module's log, against the
// least that any log must do: apply the state and set the last warning.
#include "bench/ratio_reporter.hpp"

#include "diagnostic/log/issue_warning.hpp"

#include <orrery/interp/virtual_machine.hpp>
#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>
#include <orrery/warning/warning_operation.hpp>

#include <string>

namespace {

using orrery::value::ValueArray;

const std::string kIdentifier = "ORRERY:bench:quiet";
const std::u16string kFormat = u"value %d is ignored";
const std::u16string kMessage = u"value 42 is ignored";

orrery::warning::WarningManagerContext* quietContext() {
    auto* context = orrery::warning::utGetWarningManagerContext();
    orrery::warning::utSetWarningStatus(context, kIdentifier, orrery::warning::WarningState::Off);
    orrery::lang::diagnostic::getOrCreateWarningLog(context);
    return context;
}

// warning('ORRERY:bench:quiet', 'value %d is ignored', 42) while the warning is off.
void issueDisabledWarning(benchmark::State& state) {
    auto* context = quietContext();
    const ValueArray argument = ValueArray::scalar(42);
    const ValueArray* const values[] = {&argument};
    for (auto _ : state)
        orrery::lang::diagnostic::issueAndLogWarning(context, kIdentifier, kFormat, 1, values, kMessage);
}

// The floor: the state applied and the last warning set, nothing else.
void issueDisabledWarningFloor(benchmark::State& state) {
    auto* context = quietContext();
    state.SetLabel("the warning's state applied and the last warning set");
    for (auto _ : state) {
        benchmark::DoNotOptimize(orrery::warning::issueWarningWithoutLogging(context, kIdentifier, kMessage));
        orrery::warning::utSetLastWarningMsg(context, kIdentifier, kMessage);
    }
}

}  // namespace

BENCHMARK(issueDisabledWarning)->Repetitions(5);
BENCHMARK(issueDisabledWarningFloor)->Repetitions(5);

int main(int argc, char** argv) {
    // Warnings are issued inside an interpreter instance, as in a session.
    const orrery::interp::VirtualMachineScope machine;
    return orrery::bench::runWithRatios(argc, argv);
}
