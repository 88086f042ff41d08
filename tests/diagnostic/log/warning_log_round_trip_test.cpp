// Round trip of warning logs: every record written is read back equal, whatever
// its texts hold, in a file that an independent XML tool finds well-formed.
#include "diagnostic/log/log_output_stream.hpp"
#include "diagnostic/log/warning_element.hpp"
#include "diagnostic/log/warning_log_reader.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"
#include "tests/diagnostic/log/record_generator.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace orrery;
using lang::diagnostic::Warning;

TEST(WarningLogRoundTrip, EveryRecordWrittenIsReadBackEqualAlsoAfterReopening) {
    const test::ZoneScope utc("UTC");  // where a written time reads back unshifted
    const test::TemporaryWorkingFolder folder;
    const std::u16string path = folder.file("round_trip.xml");
    test::RecordGenerator generate(20241123);
    std::vector<Warning> written;
    for (int session = 0; session < 2; ++session) {
        const auto log = lang::diagnostic::openLogForWriting(path);
        for (int i = 0; i < 150; ++i) {
            written.push_back(generate.record());
            log->writeElement(lang::diagnostic::renderWarningElement(written.back()));
        }
    }
    test::expectWellFormedXml(path);
    const std::vector<Warning> read = lang::diagnostic::readWarningLog(path);
    ASSERT_EQ(read.size(), written.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_TRUE(read[i] == written[i]) << lang::diagnostic::renderWarningElement(written[i]);
    }
}
