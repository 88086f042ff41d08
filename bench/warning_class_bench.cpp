// Cost of the Warning class over plain records, for 100,000 warnings: loading a
// log into a Warning array against reading its records alone, and sorting the
// array through its sort method against a stable sort of a copy of the records;
// also the load's peak heap use over the log file's size.
#include "bench/heap_accounting.hpp"
#include "bench/ratio_reporter.hpp"

#include "diagnostic/classes/class_registration.hpp"
#include "diagnostic/log/log_output_stream.hpp"
#include "diagnostic/log/warning_element.hpp"
#include "diagnostic/log/warning_log_reader.hpp"
#include "diagnostic/record/convert_warnings.hpp"

#include <orrery/interp/virtual_machine.hpp>
#include <orrery/lang/warning.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/text/text.hpp>

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using orrery::lang::diagnostic::Warning;
using orrery::value::ValueArray;
using orrery::value::ValueArrayPtr;

constexpr std::size_t kWarnings = 100'000;

// Records as a session issues them: a few identifiers, one argument, a short
// stack, and times in an order that sorting must change (every fifth one equal).
const std::vector<Warning>& sessionRecords() {
    static const std::vector<Warning> records = [] {
        std::vector<Warning> made;
        made.reserve(kWarnings);
        std::uint32_t state = 12345;
        for (std::size_t i = 0; i < kWarnings; ++i) {
            state = state * 1664525U + 1013904223U;
            Warning w;
            w.setIdentifier("ORRERY:bench:w" + std::to_string(i % 7));
            w.setFormat(u"value %d is out of range");
            w.setMessage(u"value " + std::u16string(1, static_cast<char16_t>(u'0' + i % 10)) + u" is out of range");
            w.setArguments({orrery::lang::PrintfArgument(static_cast<std::int32_t>(i % 10))});
            w.setStack({{u"/work/model.orr", u"step", 42}, {u"/work/run.orr", u"run", 7}});
            w.setTime(740000.0 + (i % 5 == 0 ? 0.0 : static_cast<double>(state % 100000) / 86400.0));
            w.setWasDisabled(i % 3 == 0);
            made.push_back(std::move(w));
        }
        return made;
    }();
    return records;
}

// The records written by the module's writer to a log file, once.
const std::u16string& logPath() {
    static const std::u16string path = [] {
        const auto file =
            std::filesystem::temp_directory_path() / ("orrery_bench_class_" + std::to_string(::getpid()) + ".xml");
        std::filesystem::remove(file);
        const std::u16string name = orrery::text::utf8ToUtf16(file.string());
        const auto log = orrery::lang::diagnostic::openLogForWriting(name);
        for (const Warning& w : sessionRecords()) log->writeElement(orrery::lang::diagnostic::renderWarningElement(w));
        return name;
    }();
    return path;
}

long long loadPeakBytes = 0;

// w = orrery.internal.diagnostic.log.load(file): read, then made Warning objects.
void loadWarningArray(benchmark::State& state) {
    orrery::lang::diagnostic::registerWarningClassForModule();
    const ValueArray name = ValueArray::chars(logPath());
    const ValueArray* inputs[] = {&name};
    for (auto _ : state) {
        const orrery::bench::HeapPeak peak;
        ValueArrayPtr outputs[1];
        orrery::ocos::callNamespaceFunction("orrery.internal.diagnostic.log.load", 1, outputs, 1, inputs);
        benchmark::DoNotOptimize(outputs[0].get());
        loadPeakBytes = peak.bytes();
    }
}

// The floor: the reader alone.
void loadWarningArrayFloor(benchmark::State& state) {
    state.SetLabel("the log reader alone, no objects made");
    for (auto _ : state) {
        auto records = orrery::lang::diagnostic::readWarningLog(logPath());
        benchmark::DoNotOptimize(records.data());
    }
}

// [B, I] = sort(A) on a 1-by-100,000 Warning array.
void sortWarningArray(benchmark::State& state) {
    orrery::lang::diagnostic::registerWarningClassForModule();
    const ValueArrayPtr warnings = orrery::lang::diagnostic::convertWarningsToValueArray(sessionRecords());
    const ValueArray* inputs[] = {warnings.get()};
    for (auto _ : state) {
        ValueArrayPtr outputs[2];
        orrery::ocos::callMethodIfDefined("sort", 2, outputs, 1, inputs);
        benchmark::DoNotOptimize(outputs[1].get());
    }
}

// The floor: the records copied and stably sorted, as any sort of records must.
void sortWarningArrayFloor(benchmark::State& state) {
    const std::vector<Warning>& records = sessionRecords();
    state.SetLabel("std::stable_sort of a copy of the records");
    for (auto _ : state) {
        std::vector<Warning> copy = records;
        std::stable_sort(copy.begin(), copy.end());
        benchmark::DoNotOptimize(copy.data());
    }
}

}  // namespace

BENCHMARK(loadWarningArray)->Unit(benchmark::kMillisecond)->Repetitions(3);
BENCHMARK(loadWarningArrayFloor)->Unit(benchmark::kMillisecond)->Repetitions(3);
BENCHMARK(sortWarningArray)->Unit(benchmark::kMillisecond)->Repetitions(3);
BENCHMARK(sortWarningArrayFloor)->Unit(benchmark::kMillisecond)->Repetitions(3);

int main(int argc, char** argv) {
    const orrery::interp::VirtualMachineScope machine;
    const int status = orrery::bench::runWithRatios(argc, argv);
    const auto file = std::filesystem::path(orrery::text::utf16ToUtf8(logPath()));
    if (loadPeakBytes > 0)
        orrery::bench::printPeakHeapRow("loadWarningArray", loadPeakBytes,
                                        static_cast<long long>(std::filesystem::file_size(file)));
    std::filesystem::remove(file);
    return status;
}
