// Tests of the functions orrery.internal.diagnostic.log.open and close: they
// reach the current warning log (made first when there is none) with the name,
// and the class system checks their arguments.
#include "diagnostic/log/warning_log_xml.hpp"
#include "tests/support/expect_error.hpp"
#include "warning_arrays.hpp"

#include <orrery/ocos/dispatch.hpp>
#include <orrery/warning/warning_manager.hpp>

using namespace warning_test;
using namespace orrery;

namespace {

// A log that records the names it is asked to open and close.
class RecordingLog final : public lang::diagnostic::WarningLogXML {
public:
    void openLog(const std::u16string& fileName) override { calls.push_back(u"open " + fileName); }
    void closeLog(const std::u16string& fileName) override { calls.push_back(u"close " + fileName); }
    static inline std::vector<std::u16string> calls;
    static inline int made = 0;
};

// Makes RecordingLogs as the context's logs for the scope; the context has none at the end.
class RecordingLogFactory {
public:
    RecordingLogFactory()
        : previousFactory_(warning::utGetWarningLogFactoryFcn()),
          previousDestroy_(warning::utGetWarningLogDestroyFcn()) {
        RecordingLog::calls.clear();
        RecordingLog::made = 0;
        warning::utSetWarningLog(warning::utGetWarningManagerContext(), nullptr);
        warning::utSetWarningLogFactoryFcn([]() -> warning::utWarningLog* {
            ++RecordingLog::made;
            return new RecordingLog();
        });
        warning::utSetWarningLogDestroyFcn([](warning::utWarningLog* log) { delete log; });
    }
    ~RecordingLogFactory() {
        warning::utSetWarningLog(warning::utGetWarningManagerContext(), nullptr);
        warning::utSetWarningLogFactoryFcn(previousFactory_);
        warning::utSetWarningLogDestroyFcn(previousDestroy_);
    }
    RecordingLogFactory(const RecordingLogFactory&) = delete;
    RecordingLogFactory& operator=(const RecordingLogFactory&) = delete;

private:
    warning::utWarningLogFactoryFcn previousFactory_;
    warning::utWarningLogDestroyFcn previousDestroy_;
};

void callLog(std::string_view function, int nlhs, std::vector<ValueArray> inputs) {
    lang::diagnostic::registerWarningClassForModule();
    std::vector<const ValueArray*> pointers;
    for (const auto& v : inputs) pointers.push_back(&v);
    ValueArrayPtr outputs[1];
    ocos::callNamespaceFunction("orrery.internal.diagnostic.log." + std::string(function), nlhs, outputs,
                                static_cast<std::int32_t>(pointers.size()), pointers.data());
}

}  // namespace

TEST(LogFunctions, OpenAndCloseReachTheCurrentLogMadeOnFirstUse) {
    const RecordingLogFactory factory;
    callLog("close", 0, {ValueArray::chars(u"never opened")});
    EXPECT_EQ(RecordingLog::made, 1) << "close before any open still makes the log";
    callLog("open", 0, {ValueArray::string(u"w\u00e9.xml")});
    callLog("close", 0, {ValueArray::chars(u"w\u00e9")});
    EXPECT_EQ(RecordingLog::made, 1);
    EXPECT_EQ(RecordingLog::calls,
              (std::vector<std::u16string>{u"close never opened", u"open w\u00e9.xml", u"close w\u00e9"}));
}

TEST(LogFunctions, TheClassSystemChecksTheirArguments) {
    const RecordingLogFactory factory;
    for (const char* function : {"open", "close", "load"}) {
        SCOPED_TRACE(function);
        EXPECT_MSGID(callLog(function, 0, {ValueArray::scalar(1)}), "ORRERY:ocos:argumentType");
        EXPECT_MSGID(callLog(function, 0, {ValueArray::missingString()}), "ORRERY:ocos:argumentType");
        EXPECT_MSGID(callLog(function, 0, {}), "ORRERY:notEnoughInputs");
        EXPECT_MSGID(callLog(function, 0, {ValueArray::chars(u"a"), ValueArray::chars(u"b")}), "ORRERY:tooManyInputs");
    }
    EXPECT_MSGID(callLog("open", 1, {ValueArray::chars(u"a")}), "ORRERY:tooManyOutputs");
    EXPECT_TRUE(RecordingLog::calls.empty());
}
