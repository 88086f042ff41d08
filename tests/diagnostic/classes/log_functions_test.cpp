// Tests of the functions orrery.internal.diagnostic.log.open, close and load,
// called by dotted path as the language calls them: a round trip from issued
// warnings to a loaded Warning array, a log of many varied records loaded
// whole and in order, and failures that leave no array.
#include "diagnostic/log/issue_warning.hpp"
#include "diagnostic/log/log_output_stream.hpp"
#include "diagnostic/log/warning_element.hpp"
#include "diagnostic/warnings/issued_warning_signal.hpp"
#include "tests/diagnostic/log/log_test_support.hpp"
#include "tests/diagnostic/log/record_generator.hpp"
#include "tests/support/expect_error.hpp"
#include "warning_arrays.hpp"

#include <orrery/console/console_capture.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <boost/signals2/connection.hpp>

#include <fstream>

using namespace warning_test;
using namespace orrery;

namespace {

/// Calls log.<function>(inputs...) and returns its output slot.
ValueArrayPtr callLog(std::string_view function, int nlhs, std::vector<ValueArray> inputs) {
    lang::diagnostic::registerWarningClassForModule();
    std::vector<const ValueArray*> pointers;
    for (const auto& v : inputs) pointers.push_back(&v);
    ValueArrayPtr outputs[1];
    ocos::callNamespaceFunction("orrery.internal.diagnostic.log." + std::string(function), nlhs, outputs,
                                static_cast<std::int32_t>(pointers.size()), pointers.data());
    return std::move(outputs[0]);
}

void issue(const std::string& identifier, const std::u16string& message) {
    lang::diagnostic::issueAndLogWarning(warning::utGetWarningManagerContext(), identifier, message, 0, nullptr,
                                         message);
}

}  // namespace

TEST(LogFunctions, LoadGivesBackTheWarningsIssuedWhileTheLogWasOpen) {
    const test::TemporaryWorkingFolder folder;
    const console::ConsoleCapture console;
    auto* context = warning::utGetWarningManagerContext();
    warning::utSetWarningStatus(context, "demo:quiet", warning::WarningState::Off);
    std::vector<Warning> issued;
    const boost::signals2::scoped_connection connection(
        builtins::connectIssuedWarningCallback([&](const Warning& w) { issued.push_back(w); }));

    callLog("open", 0, {ValueArray::chars(u"session")});
    issue("demo:first", u"first");
    issue("demo:quiet", u"issued while off");
    issue("", u"no identifier");
    callLog("close", 0, {ValueArray::string(u"session.xml")});
    issue("demo:late", u"after closing");

    const ValueArrayPtr loaded = callLog("load", 1, {ValueArray::chars(u"session")});
    ASSERT_EQ(issued.size(), 4U);
    ASSERT_EQ(loaded->dims(), (Dims{1, 3}));
    for (std::size_t i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        // The log keeps times to the millisecond; every other field comes back as issued.
        Warning read = lang::diagnostic::warningRecordAt(*loaded, i);
        EXPECT_NEAR(read.getTime(), issued[i].getTime(), 0.0006 / 86400);
        read.setTime(issued[i].getTime());
        EXPECT_TRUE(read == issued[i]);
    }
    EXPECT_TRUE(lang::diagnostic::warningRecordAt(*loaded, 1).getWasDisabled());
    warning::utSetWarningStatus(context, "demo:quiet", warning::WarningState::On);
}

// Records are read straight into their objects: each must get its own record,
// whole, in file order, however many there are.
TEST(LogFunctions, LoadMakesOneObjectPerRecordInFileOrder) {
    const test::ZoneScope utc("UTC");  // where a written time reads back unshifted
    const test::TemporaryWorkingFolder folder;
    test::RecordGenerator generate(20251124);
    std::vector<Warning> written(300);
    {
        const auto log = lang::diagnostic::openLogForWriting(folder.file("many.xml"));
        for (Warning& record : written) {
            record = generate.record();
            log->writeElement(lang::diagnostic::renderWarningElement(record));
        }
    }
    const ValueArrayPtr loaded = callLog("load", 1, {ValueArray::chars(u"many")});
    ASSERT_EQ(loaded->dims(), (Dims{1, written.size()}));
    for (std::size_t i = 0; i < written.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_TRUE(lang::diagnostic::warningRecordAt(*loaded, i) == written[i]);
    }
}

TEST(LogFunctions, FailuresPassOnTheLogsIdentifiersAndLeaveNoArray) {
    const test::TemporaryWorkingFolder folder;
    std::ofstream("broken.xml") << "<log><warning identifier=\"a:b\"";
    std::ofstream("empty.xml") << "<log></log>";
    EXPECT_EQ(callLog("load", 1, {ValueArray::chars(u"empty")})->dims(), (Dims{1, 0}));

    ValueArrayPtr output;
    EXPECT_MSGID(output = callLog("load", 1, {ValueArray::chars(u"missing")}), "ORRERY:warning:LogFile:OpenFileRead");
    EXPECT_MSGID(output = callLog("load", 1, {ValueArray::chars(u"broken")}), "ORRERY:warning:XMLParser:ParseError");
    EXPECT_EQ(output, nullptr);

    // close before any open still makes the log, whose close refuses the name.
    auto* context = warning::utGetWarningManagerContext();
    warning::utSetWarningLog(context, nullptr);
    EXPECT_MSGID(callLog("close", 0, {ValueArray::chars(u"never")}), "ORRERY:warning:LogFile:FileNotOpen");
    EXPECT_NE(warning::utGetWarningLog(context), nullptr);

    for (const char* function : {"open", "close", "load", "summary"}) {
        SCOPED_TRACE(function);
        EXPECT_MSGID(callLog(function, 0, {ValueArray::scalar(1)}), "ORRERY:ocos:argumentType");
        EXPECT_MSGID(callLog(function, 0, {}), "ORRERY:notEnoughInputs");
    }
}
