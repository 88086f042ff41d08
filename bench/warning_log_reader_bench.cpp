// Cost of loading a 100,000-warning log, against Expat parsing the same file with
// empty handlers; also the load's peak heap use over the file's size.
#include "bench/heap_accounting.hpp"
#include "bench/ratio_reporter.hpp"

#include "diagnostic/log/warning_log_reader.hpp"

#include <orrery/interp/virtual_machine.hpp>
#include <orrery/text/text.hpp>

#include <expat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr int kWarnings = 100000;

// A log as the writer lays it out: header, elements with escaped texts, footer.
std::string writeLog() {
    const auto path =
        std::filesystem::temp_directory_path() / ("orrery_bench_log_" + std::to_string(::getpid()) + ".xml");
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<log>\n";
    for (int i = 0; i < kWarnings; ++i) {
        out << "    <warning identifier=\"ORRERY:bench:range" << i % 50 << "\" wasDisabled=\""
            << (i % 3 == 0 ? "true" : "false") << "\" time=\"2024-03-05 14:07:" << 10 + i % 50 << '.' << 100 + i % 900
            << " +0100\">\n"
            << "        <message>value " << i << " is out of range ##3 in &quot;x&quot;#a#see below</message>\n"
            << "        <format>value %d is out of range ##3 in &quot;%s&quot;#a#see below</format>\n"
            << "        <arg type=\"int32\">" << i << "</arg>\n"
            << "        <arg type=\"string\">x</arg>\n"
            << "        <arg type=\"double\">0.125</arg>\n"
            << "        <frame file=\"/home/user/project/model.orr\" name=\"model\" line=\"" << i % 400 << "\"/>\n"
            << "        <frame file=\"/home/user/project/run.orr\" name=\"run\" line=\"7\"/>\n"
            << "    </warning>\n";
    }
    out << "</log>\n";
    return path.string();
}

const std::string& logPath() {
    static const std::string path = writeLog();
    return path;
}

long long fileSize() { return static_cast<long long>(std::filesystem::file_size(logPath())); }

long long loadPeakBytes = 0;

// orrery.internal.diagnostic.log.load's work: every record of the file.
void loadWarningLog(benchmark::State& state) {
    const std::u16string path = orrery::text::utf8ToUtf16(logPath());
    for (auto _ : state) {
        const orrery::bench::HeapPeak peak;
        auto warnings = orrery::lang::diagnostic::readWarningLogFile(path);
        benchmark::DoNotOptimize(warnings.data());
        loadPeakBytes = peak.bytes();
    }
    state.SetBytesProcessed(state.iterations() * fileSize());
}

void XMLCALL ignoreStart(void*, const XML_Char*, const XML_Char**) {}
void XMLCALL ignoreEnd(void*, const XML_Char*) {}
void XMLCALL ignoreText(void*, const XML_Char*, int) {}

// The floor: Expat over the same file, fed the same 1024-byte blocks, with empty handlers.
void loadWarningLogFloor(benchmark::State& state) {
    state.SetLabel("bare Expat parse of the file, empty handlers");
    for (auto _ : state) {
        XML_Parser parser = XML_ParserCreate(nullptr);
        XML_SetElementHandler(parser, ignoreStart, ignoreEnd);
        XML_SetCharacterDataHandler(parser, ignoreText);
        std::ifstream in(logPath(), std::ios::binary);
        for (;;) {
            void* block = XML_GetBuffer(parser, 1024);
            in.read(static_cast<char*>(block), 1024);
            const auto count = in.gcount();
            if (XML_ParseBuffer(parser, static_cast<int>(count), in.eof()) != XML_STATUS_OK)
                state.SkipWithError("parse");
            if (count < 1024) break;
        }
        XML_ParserFree(parser);
    }
    state.SetBytesProcessed(state.iterations() * fileSize());
}

}  // namespace

BENCHMARK(loadWarningLog)->Unit(benchmark::kMillisecond)->Repetitions(3);
BENCHMARK(loadWarningLogFloor)->Unit(benchmark::kMillisecond)->Repetitions(3);

int main(int argc, char** argv) {
    const orrery::interp::VirtualMachineScope machine;
    const int status = orrery::bench::runWithRatios(argc, argv);
    if (loadPeakBytes > 0) orrery::bench::printPeakHeapRow("loadWarningLog", loadPeakBytes, fileSize());
    std::filesystem::remove(logPath());
    return status;
}
