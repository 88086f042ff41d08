// Cost of appending a warning to an open log file, with and without forcing it to
// the disk: against the floor of the system calls every append to a log shared by
// several writers needs (lock, the two positioned writes of the same bytes,
// unlock), and, when it is installed, against spdlog's basic file sink flushing
// every message.
#include "bench/ratio_reporter.hpp"

#include "diagnostic/log/log_file_format.hpp"
#include "diagnostic/log/log_output_stream.hpp"
#include "diagnostic/log/warning_element.hpp"

#include <orrery/interp/dates.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/text/text.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#ifdef ORRERY_BENCH_SPDLOG
#include <spdlog/logger.h>
#include <spdlog/sinks/basic_file_sink.h>
#endif

namespace {

using orrery::lang::diagnostic::Warning;

// A warning as a script issues it: three integer arguments, two frames.
Warning typicalWarning() {
    Warning warning;
    warning.setIdentifier("ORRERY:bench:outOfRange");
    warning.setMessage(u"value 42 is out of range [0, 10]");
    warning.setFormat(u"value %d is out of range [%d, %d]");
    warning.setArguments({std::int32_t{42}, std::int32_t{0}, std::int32_t{10}});
    warning.setStack(std::vector<orrery::lang::StackFrame>{{u"/home/user/project/check_range.orr", u"check_range", 17},
                                                           {u"/home/user/project/main.orr", u"main", 4}});
    warning.setTime(orrery::interp::nowSerial());
    return warning;
}

std::string renderedWarning() { return orrery::lang::diagnostic::renderWarningElement(typicalWarning()); }

/// A file in the temporary folder, removed when the benchmark ends.
class ScratchFile {
public:
    explicit ScratchFile(const char* name)
        : path_(std::filesystem::temp_directory_path() / (std::to_string(::getpid()) + "_" + name)) {
        std::filesystem::remove(path_);
    }
    ~ScratchFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    std::string path() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

// Rendering the record and appending it to an open log, once per iteration.
void appendWarnings(benchmark::State& state, const char* name, bool sync) {
    const ScratchFile file(name);
    if (sync) ::setenv("ORRERY_LOG_SYNC", "1", 1);
    const auto log = orrery::lang::diagnostic::openLogForWriting(orrery::text::utf8ToUtf16(file.path()));
    ::unsetenv("ORRERY_LOG_SYNC");
    const Warning warning = typicalWarning();
    for (auto _ : state) log->writeElement(orrery::lang::diagnostic::renderWarningElement(warning));
    state.SetItemsProcessed(state.iterations());
}

void appendWarningToLog(benchmark::State& state) { appendWarnings(state, "bench_log.xml", false); }

// The same with ORRERY_LOG_SYNC=1: each warning forced to the disk (two fdatasync
// calls, one after each of the warning's two writes), over a floor that syncs once.
void appendWarningToLogWithSync(benchmark::State& state) { appendWarnings(state, "bench_sync_log.xml", true); }

// Whole-file lock of the given type on the open file description.
bool lockWholeFile(int fd, short type, int command) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    return ::fcntl(fd, command, &lock) == 0;
}

// The floor: per warning, the exclusive lock, the element's rest and the footer
// after the old footer, the element's head over it, and the unlock.
void appendWarningToLogFloor(benchmark::State& state) {
    using orrery::lang::diagnostic::kLogFooter;
    const ScratchFile file("bench_floor.xml");
    const int fd = ::open(file.path().c_str(), O_RDWR | O_CREAT | O_TRUNC, 0644);
    std::string bytes = renderedWarning();
    const std::size_t head = kLogFooter.size();
    const std::size_t element = bytes.size();
    bytes += kLogFooter;
    off_t footer = 0;
    state.SetLabel("system calls");
    for (auto _ : state) {
        const bool written = lockWholeFile(fd, F_WRLCK, F_OFD_SETLKW) &&
                             ::pwrite(fd, bytes.data() + head, bytes.size() - head,
                                      footer + static_cast<off_t>(head)) == static_cast<ssize_t>(bytes.size() - head) &&
                             ::pwrite(fd, bytes.data(), head, footer) == static_cast<ssize_t>(head) &&
                             lockWholeFile(fd, F_UNLCK, F_OFD_SETLK);
        if (!written) state.SkipWithError("append");
        footer += static_cast<off_t>(element);
    }
    ::close(fd);
    state.SetItemsProcessed(state.iterations());
}

// The floor of the synced append: one write() of the same bytes, then fdatasync.
void appendWarningToLogWithSyncFloor(benchmark::State& state) {
    const ScratchFile file("bench_sync_floor.xml");
    const int fd = ::open(file.path().c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const std::string bytes = renderedWarning();
    state.SetLabel("one write() of the same bytes and one fdatasync");
    for (auto _ : state)
        if (::write(fd, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()) || ::fdatasync(fd) != 0)
            state.SkipWithError("write");
    ::close(fd);
    state.SetItemsProcessed(state.iterations());
}

#ifdef ORRERY_BENCH_SPDLOG
// The peer: a file logger that flushes every message, given the same warning's
// identifier, message and format (its own pattern adds time, name and level).
void appendWarningToLogPeer(benchmark::State& state) {
    const ScratchFile file("bench_peer.log");
    spdlog::logger logger("bench", std::make_shared<spdlog::sinks::basic_file_sink_st>(file.path(), true));
    logger.flush_on(spdlog::level::trace);
    const Warning warning = typicalWarning();
    const std::string message = orrery::text::utf16ToUtf8(warning.getMessage());
    const std::string format = orrery::text::utf16ToUtf8(warning.getFormat());
    state.SetLabel("spdlog file sink flushing every message");
    for (auto _ : state) logger.warn("{} {} ({})", warning.getIdentifier(), message, format);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(appendWarningToLogPeer)->Repetitions(5);
#endif

}  // namespace

BENCHMARK(appendWarningToLog)->Repetitions(5);
BENCHMARK(appendWarningToLogFloor)->Repetitions(5);
// Real time: the wait for the disk is no CPU time of the process.
BENCHMARK(appendWarningToLogWithSync)->Repetitions(5)->UseRealTime();
BENCHMARK(appendWarningToLogWithSyncFloor)->Repetitions(5)->UseRealTime();

int main(int argc, char** argv) {
    const orrery::interp::VirtualMachineScope machine;
    return orrery::bench::runWithRatios(argc, argv);
}
