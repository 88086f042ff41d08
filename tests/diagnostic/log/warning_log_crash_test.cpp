// A process that issues warnings to an open log as fast as it can is killed at
// random moments: every file it leaves loads and holds every warning whose issue
// returned before the kill, unchanged and in order.
#include "diagnostic/log/log_file_descriptor.hpp"
#include "diagnostic/log/warning_log_reader.hpp"
#include "diagnostic/log/warning_log_xml.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <thread>
#include <vector>

using namespace orrery;
using lang::diagnostic::LogFileDescriptor;
using lang::diagnostic::Warning;
using lang::diagnostic::WarningLogXML;

namespace {

/// The seed of every random choice; ORRERY_CRASH_SEED replays another run.
std::uint64_t seed() {
    const char* chosen = std::getenv("ORRERY_CRASH_SEED");
    return chosen != nullptr ? std::strtoull(chosen, nullptr, 10) : 20240305U;
}

/// Warning sequence of run: a few code units up to several times a 64 KiB stream
/// buffer, of text that takes one to four bytes a character and escapes.
std::u16string messageOf(std::uint64_t run, std::uint32_t sequence) {
    static constexpr std::size_t kSizes[] = {3, 5, 12, 40, 90, 300, 1000, 4000, 9000, 70000, 200000, 3, 20, 60};
    static constexpr std::u16string_view kText = u"a\u00e9\u20ac<&\n\U0001F600\t#'z";
    std::mt19937_64 generator(seed() ^ (run << 32U) ^ sequence);
    const std::size_t size = kSizes[generator() % std::size(kSizes)];
    std::u16string message = text::utf8ToUtf16("r" + std::to_string(run) + "s" + std::to_string(sequence) + " ");
    while (message.size() < size) message += kText.substr(0, std::min(kText.size(), size - message.size()));
    return message;
}

/// The child: opens the logs and issues warnings until it is killed, writing the
/// sequence number of each to acknowledgements once its issue has returned.
[[noreturn]] void issueWarningsUntilKilled(const std::vector<std::u16string>& paths, std::uint64_t run,
                                           int acknowledgements) {
    try {
        WarningLogXML log;
        for (const std::u16string& path : paths) log.openLog(path);
        for (std::uint32_t sequence = 0;; ++sequence) {
            log.warn(warning::utGetWarningManagerContext(), "test:crash", u"%s", 0, nullptr, messageOf(run, sequence),
                     false);
            if (::write(acknowledgements, &sequence, sizeof sequence) != sizeof sequence) ::_exit(3);
        }
    } catch (const std::exception& failure) {
        std::cerr << "child of run " << run << ": " << failure.what() << '\n';
    }
    ::_exit(2);
}

/// Runs a child on the logs at paths, kills it after delay and answers the
/// sequence numbers it acknowledged.
std::vector<std::uint32_t> killedRun(const std::vector<std::u16string>& paths, std::uint64_t run,
                                     std::chrono::microseconds delay) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
    const LogFileDescriptor reading(ends[0]);
    pid_t child = 0;
    {
        const LogFileDescriptor writing(ends[1]);
        child = ::fork();
        if (child == 0) issueWarningsUntilKilled(paths, run, writing.get());
    }
    std::this_thread::sleep_for(delay);
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the child ended by itself";
    std::vector<std::uint32_t> acknowledged;
    for (std::uint32_t sequence = 0; ::read(reading.get(), &sequence, sizeof sequence) == sizeof sequence;)
        acknowledged.push_back(sequence);
    return acknowledged;
}

/// Checks that the file holds the warnings it held before, then the acknowledged
/// ones of run, then at most one more of run; answers what it holds.
std::vector<Warning> expectAcknowledgedWarnings(const std::u16string& path, const std::vector<Warning>& before,
                                                std::uint64_t run, std::size_t acknowledged) {
    if (before.empty() && acknowledged == 0 && !std::filesystem::exists(text::utf16ToUtf8(path))) return {};
    std::vector<Warning> records;
    try {
        records = lang::diagnostic::readWarningLogFile(path);
    } catch (const std::exception& failure) {
        ADD_FAILURE() << "the file does not load: " << failure.what();
        return before;
    }
    EXPECT_GE(records.size(), before.size() + acknowledged);
    EXPECT_LE(records.size(), before.size() + acknowledged + 1);
    for (std::size_t i = 0; i < records.size(); ++i) {
        const bool earlier = i < before.size();
        const std::u16string expected =
            earlier ? before[i].getMessage() : messageOf(run, static_cast<std::uint32_t>(i - before.size()));
        EXPECT_TRUE(records[i].getMessage() == expected && records[i].getIdentifier() == "test:crash" &&
                    records[i].getFormat() == u"%s")
            << "warning " << i << (earlier ? " of an earlier run" : " of this run") << " differs";
    }
    return records;
}

}  // namespace

// Each child writes to two logs, which doubles the share of its time spent writing.
TEST(WarningLogCrash, EveryFileLeftByAKilledProcessLoadsWithEveryAcknowledgedWarningInOrder) {
    const test::TemporaryWorkingFolder folder;
    std::cout << "seed " << seed() << " (set ORRERY_CRASH_SEED to replay another)\n";
    std::mt19937_64 generator(seed());
    std::uniform_int_distribution<int> delayMicroseconds(0, 8000);
    const auto kill = [&](const std::vector<std::u16string>& paths, std::uint64_t run) {
        return killedRun(paths, run, std::chrono::microseconds(delayMicroseconds(generator))).size();
    };
    constexpr int kFreshRuns = 50;
    constexpr int kReopenedPairs = 5;
    constexpr int kRunsPerReopenedPair = 10;
    std::uint64_t run = 0;

    for (; run < kFreshRuns; ++run) {
        SCOPED_TRACE("fresh files, run " + std::to_string(run));
        const std::vector<std::u16string> paths{folder.file("fresh" + std::to_string(run) + "a.xml"),
                                                folder.file("fresh" + std::to_string(run) + "b.xml")};
        const std::size_t acknowledged = kill(paths, run);
        for (const std::u16string& path : paths) expectAcknowledgedWarnings(path, {}, run, acknowledged);
    }
    for (int pair = 0; pair < kReopenedPairs; ++pair) {
        const std::vector<std::u16string> paths{folder.file("reopened" + std::to_string(pair) + "a.xml"),
                                                folder.file("reopened" + std::to_string(pair) + "b.xml")};
        std::vector<std::vector<Warning>> held(paths.size());
        for (int again = 0; again < kRunsPerReopenedPair; ++again, ++run) {
            SCOPED_TRACE("reopened files, run " + std::to_string(run));
            const std::size_t acknowledged = kill(paths, run);
            for (std::size_t i = 0; i < paths.size(); ++i)
                held[i] = expectAcknowledgedWarnings(paths[i], held[i], run, acknowledged);
        }
        // A warning written after the last kill leaves each file exactly a log again,
        // whatever a cut-short warning left after its footer.
        WarningLogXML log;
        for (const std::u16string& path : paths) log.openLog(path);
        log.warn(warning::utGetWarningManagerContext(), "test:crash", u"%s", 0, nullptr, u"last", false);
        for (std::size_t i = 0; i < paths.size(); ++i) {
            log.closeLog(paths[i]);
            const std::vector<Warning> records = lang::diagnostic::readWarningLogFile(paths[i]);
            EXPECT_TRUE(records.size() == held[i].size() + 1 && records.back().getMessage() == u"last");
            test::expectWellFormedXml(paths[i]);
        }
    }
}
