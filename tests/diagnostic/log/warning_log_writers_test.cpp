// Several processes append to one warning log at once, and one of them may be
// killed at any moment: the file stays a log that holds every warning each
// writer finished, once, in that writer's order.
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
#include <iostream>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

using namespace orrery;
using lang::diagnostic::LogFileDescriptor;
using lang::diagnostic::WarningLogXML;

namespace {

constexpr int kWriters = 4;
constexpr std::uint32_t kWarningsPerWriter = 5000;

/// A writing child: opens the log, issues its warnings ("writer sequence" as the
/// message, a longer text now and then) and reports each finished one on
/// acknowledgements (when given), then ends.
[[noreturn]] void writeWarnings(const std::u16string& path, int writer, int acknowledgements) {
    try {
        WarningLogXML log;
        log.openLog(path);
        for (std::uint32_t sequence = 0; sequence < kWarningsPerWriter; ++sequence) {
            std::u16string message = text::utf8ToUtf16(std::to_string(writer) + " " + std::to_string(sequence) + " ");
            message.append(sequence % 97 == 0 ? 3000 : 10, u'\u00e9');
            log.warn(warning::utGetWarningManagerContext(), "test:writer", u"%s", 0, nullptr, message, false);
            if (acknowledgements >= 0 && ::write(acknowledgements, &sequence, sizeof sequence) != sizeof sequence)
                ::_exit(3);
        }
        ::_exit(0);
    } catch (const std::exception& failure) {
        std::cerr << "writer " << writer << ": " << failure.what() << '\n';
    }
    ::_exit(2);
}

/// Per writer, the sequence numbers of its warnings in the file, in file order.
std::vector<std::vector<std::uint32_t>> sequencesIn(const std::u16string& path) {
    std::vector<std::vector<std::uint32_t>> sequences(kWriters);
    for (const auto& warning : lang::diagnostic::readWarningLogFile(path)) {
        const std::string message = text::utf16ToUtf8(warning.getMessage());
        const std::size_t space = message.find(' ');
        const int writer = std::stoi(message.substr(0, space));
        sequences.at(static_cast<std::size_t>(writer))
            .push_back(static_cast<std::uint32_t>(std::stoul(message.substr(space + 1))));
    }
    return sequences;
}

/// 0, 1, ... count - 1, after what earlier holds.
std::vector<std::uint32_t> followedByFirst(std::vector<std::uint32_t> earlier, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) earlier.push_back(static_cast<std::uint32_t>(i));
    return earlier;
}

/// Runs kWriters children on the log at once; the first is killed after
/// killDelay when one is given. Answers how many warnings the first acknowledged.
std::size_t runWriters(const std::u16string& path, std::optional<std::chrono::microseconds> killDelay) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
    const LogFileDescriptor reading(ends[0]);
    std::vector<pid_t> children;
    {
        const LogFileDescriptor writing(ends[1]);
        for (int writer = 0; writer < kWriters; ++writer) {
            const pid_t child = ::fork();
            if (child == 0) writeWarnings(path, writer, writer == 0 ? writing.get() : -1);
            children.push_back(child);
        }
    }
    if (killDelay) {
        std::this_thread::sleep_for(*killDelay);
        ::kill(children.front(), SIGKILL);
    }
    for (std::size_t i = 0; i < children.size(); ++i) {
        int status = 0;
        ::waitpid(children[i], &status, 0);
        const bool killed = i == 0 && killDelay && WIFSIGNALED(status);
        EXPECT_TRUE(killed || (WIFEXITED(status) && WEXITSTATUS(status) == 0)) << "writer " << i << " failed";
    }
    std::size_t acknowledged = 0;
    for (std::uint32_t sequence = 0; ::read(reading.get(), &sequence, sizeof sequence) == sizeof sequence;)
        ++acknowledged;
    return acknowledged;
}

}  // namespace

// Each round adds every writer's warnings again after the earlier rounds'.
TEST(WarningLogWriters, EveryWarningOfEveryProcessIsKeptOnceInItsWritersOrder) {
    const test::TemporaryWorkingFolder folder;
    const std::u16string path = folder.file("shared.xml");
    std::vector<std::uint32_t> expected;
    for (int round = 1; round <= 2; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        runWriters(path, std::nullopt);
        expected = followedByFirst(expected, kWarningsPerWriter);
        const auto sequences = sequencesIn(path);
        for (const auto& writer : sequences) EXPECT_TRUE(writer == expected) << writer.size() << " warnings";
        test::expectWellFormedXml(path);
    }
}

// The killed writer's finished warnings are all there, and perhaps the one it
// was writing; the others lose nothing, the next round included.
TEST(WarningLogWriters, AWriterKilledAtAnyMomentCostsOnlyItsUnfinishedWarning) {
    const test::TemporaryWorkingFolder folder;
    const std::u16string path = folder.file("shared.xml");
    std::mt19937 generator(20261124U);
    std::vector<std::uint32_t> others;
    std::vector<std::uint32_t> killed;
    for (int round = 1; round <= 3; ++round) {
        const auto delay = std::chrono::microseconds(std::uniform_int_distribution<int>(0, 60000)(generator));
        SCOPED_TRACE("round " + std::to_string(round) + ", kill after " + std::to_string(delay.count()) + " us");
        const std::size_t acknowledged = runWriters(path, delay);
        others = followedByFirst(others, kWarningsPerWriter);
        const auto sequences = sequencesIn(path);
        for (std::size_t writer = 1; writer < sequences.size(); ++writer) EXPECT_TRUE(sequences[writer] == others);
        const std::vector<std::uint32_t> finished = followedByFirst(killed, acknowledged);
        const auto& kept = sequences.front();
        EXPECT_TRUE(kept == finished || kept == followedByFirst(killed, acknowledged + 1))
            << kept.size() << " warnings of the killed writer, " << finished.size() << " finished";
        killed = kept;
        test::expectWellFormedXml(path);
    }
}
