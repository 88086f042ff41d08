// Tests of the warning log's common steps, reached through its three warn
// operations: last warning, record, event, issued-warning signal and callback.
#include "diagnostic/log/warning_log_xml.hpp"
#include "diagnostic/log/catalogue_message_identifier.hpp"
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include "tests/diagnostic/log/log_test_support.hpp"

#include <orrery/events/warning_events.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/dates.hpp>
#include <orrery/interp/virtual_machine.hpp>

#include <gtest/gtest.h>

#include <cstdarg>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace orrery;
using lang::PrintfArgument;
using lang::StackFrame;
using lang::diagnostic::Warning;
using lang::diagnostic::WarningLogXML;
using value::ValueArray;
using warning::WarningManagerContext;

namespace {

// The format slot as a C caller reaches it: the format's arguments follow it.
void warnWithFormat(WarningLogXML& log, WarningManagerContext* context, bool wasDisabled, const char16_t* format, ...) {
    std::va_list cursor;
    va_start(cursor, format);
    log.warn(context, "test:variadic", format, &cursor, u"message", wasDisabled);
    va_end(cursor);
}

const catalogue::MessageContent kNotOpen{"ORRERY:warning:LogFile:FileNotOpen", {std::u16string(u"a.xml")}};

// The ways a warning reaches the log, by number.
void warnThrough(int slot, WarningLogXML& log, WarningManagerContext* context, bool wasDisabled) {
    const ValueArray values[] = {ValueArray::numericScalar(value::ClassId::Int32, 3), ValueArray::chars(u"x")};
    const ValueArray* pointers[] = {&values[0], &values[1]};
    switch (slot) {
        case 0: log.warn(context, std::nullopt, kNotOpen, wasDisabled); break;
        case 1: log.warn(context, std::string("test:given"), kNotOpen, wasDisabled); break;
        case 2: warnWithFormat(log, context, wasDisabled, u"%ld items%n, %c!", -1L, nullptr, "y"); break;
        case 3: log.warn(context, "test:values", u"%d of %s", 2, pointers, u"3 of x", wasDisabled); break;
        default: log.warn(context, "test:none", u"%d", -1, nullptr, u"none", wasDisabled);
    }
}

// What each way must record.
struct Slot {
    const char* name;
    std::string identifier;
    std::u16string message;
    std::u16string format;
    std::vector<PrintfArgument> arguments;
};
const char16_t kNotOpenText[] = u"The log file 'a.xml' is not open.";
const Slot kSlots[] = {
    {"catalogue message", "ORRERY:warning:LogFile:FileNotOpen", kNotOpenText, u"", {std::u16string(u"a.xml")}},
    {"catalogue message, identifier given", "test:given", kNotOpenText, u"", {std::u16string(u"a.xml")}},
    {"format, %n removed", "test:variadic", u"message", u"%ld items, %c!", {std::int64_t{-1}, std::u16string(u"y")}},
    {"values", "test:values", u"3 of x", u"%d of %s", {std::int32_t{3}, std::u16string(u"x")}},
    {"values, a count below one", "test:none", u"none", u"%d", {}},
};

// A fresh interpreter instance with a log, a slot on the issued-warning signal,
// a listener on the instance's events and a registered warning callback.
class WarningLogSteps : public ::testing::Test {
protected:
    void SetUp() override {
        signal_ = builtins::connectIssuedWarningCallback([this](const Warning& w) { signalled_.push_back(w); });
        events_ = machine_.machine().eventPublisher()->subscribe([this](const events::Event& event) {
            if (const auto* e = dynamic_cast<const events::IssuedWarningEvent*>(&event))
                disabledEvents_.push_back(e->warning());
            if (const auto* e = dynamic_cast<const events::IssuedEnabledWarningEvent*>(&event))
                enabledEvents_.push_back(e->warning());
        });
        warning::utRegisterWarningCallback(context(), [this] { ++callbacks_; });
    }

    WarningManagerContext* context() { return machine_.machine().warningManagerContext(); }

    void forget() {
        signalled_.clear();
        disabledEvents_.clear();
        enabledEvents_.clear();
        callbacks_ = 0;
    }

    void expectLastWarning(const std::string& identifier, const std::u16string& message) {
        std::u16string lastMessage;
        std::string lastIdentifier;
        warning::utGetLastWarningMsg(context(), lastMessage, lastIdentifier);
        EXPECT_EQ(lastIdentifier, identifier);
        EXPECT_EQ(lastMessage, message);
    }

    interp::VirtualMachineScope machine_;
    WarningLogXML log_;
    std::vector<Warning> signalled_;
    std::vector<Warning> disabledEvents_;
    std::vector<Warning> enabledEvents_;
    int callbacks_ = 0;
    boost::signals2::scoped_connection signal_;
    boost::signals2::scoped_connection events_;
};

}  // namespace

// A disabled warning is published as an issued-warning event, an enabled one as an
// issued-enabled-warning event, never both; only an enabled one calls back.
TEST_F(WarningLogSteps, EachSlotRecordsSignalsAndPublishesExactlyOneEventAndCallsBackOnlyWhenEnabled) {
    for (int i = 0; i < static_cast<int>(std::size(kSlots)); ++i) {
        const Slot& slot = kSlots[i];
        for (const bool wasDisabled : {true, false}) {
            SCOPED_TRACE(std::string(slot.name) + (wasDisabled ? ", disabled" : ", enabled"));
            forget();
            warning::utSetLastWarningMsg(context(), "", u"");
            warnThrough(i, log_, context(), wasDisabled);
            expectLastWarning(slot.identifier, slot.message);
            ASSERT_EQ(signalled_.size(), 1U);
            const Warning& record = signalled_[0];
            EXPECT_EQ(record.getWasDisabled(), wasDisabled);
            EXPECT_EQ(record.getIdentifier(), slot.identifier);
            EXPECT_EQ(record.getMessage(), slot.message);
            EXPECT_EQ(record.getFormat(), slot.format);
            EXPECT_EQ(record.getArguments(), slot.arguments);
            const auto& published = wasDisabled ? disabledEvents_ : enabledEvents_;
            const auto& other = wasDisabled ? enabledEvents_ : disabledEvents_;
            ASSERT_EQ(published.size(), 1U);
            EXPECT_EQ(published[0], record);
            EXPECT_TRUE(other.empty());
            EXPECT_EQ(callbacks_, wasDisabled ? 0 : 1);
        }
    }
}

TEST_F(WarningLogSteps, TheRecordCarriesTheStackInnermostFirstAndTheTime) {
    const interp::FrameGuard outer({u"/work/outer.orr", u"outer", 4});
    const interp::FrameGuard inner({u"/work/inner.orr", u"inner", 9});
    const double before = interp::nowSerial();
    log_.warn(context(), "test:record", u"", 0, nullptr, u"text", false);
    const double after = interp::nowSerial();
    ASSERT_EQ(signalled_.size(), 1U);
    EXPECT_EQ(signalled_[0].getStack(),
              (std::vector<StackFrame>{{u"/work/inner.orr", u"inner", 9}, {u"/work/outer.orr", u"outer", 4}}));
    EXPECT_GE(signalled_[0].getTime(), before);
    EXPECT_LE(signalled_[0].getTime(), after);
}

// ---- publishing -------------------------------------------------------------------------

namespace {

// A log that has no event publisher, and counts what it is asked to publish.
class LogWithoutPublisher : public WarningLogXML {
public:
    std::shared_ptr<events::EventPublisher> eventPublisher() const override { return nullptr; }
    void publishIssuedWarning(const Warning& warning) const override {
        ++published;
        WarningLogXML::publishIssuedWarning(warning);
    }
    mutable int published = 0;
};

}  // namespace

TEST_F(WarningLogSteps, WithoutAPublisherNoEventIsPublishedAndTheOtherStepsGoOn) {
    LogWithoutPublisher log;
    log.warn(context(), "test:nopublisher", u"", 0, nullptr, u"text", false);
    EXPECT_EQ(log.published, 1);
    EXPECT_TRUE(enabledEvents_.empty());
    EXPECT_EQ(signalled_.size(), 1U);
    EXPECT_EQ(callbacks_, 1);
    expectLastWarning("test:nopublisher", u"text");
}

TEST(WarningLogPublisher, IsTheCurrentMachinesOrNone) {
    const WarningLogXML log;
    EXPECT_EQ(log.eventPublisher(), interp::currentLocalVirtualMachine()->eventPublisher());
    std::shared_ptr<events::EventPublisher> elsewhere = std::make_shared<events::EventPublisher>();
    std::thread([&] { elsewhere = log.eventPublisher(); }).join();
    EXPECT_EQ(elsewhere, nullptr);
}

TEST(CatalogueMessageIdentifier, StandsForOrreryOnlyForItsLegacyTwoPartComponent) {
    struct Case {
        const char* message;
        const char* logged;
    };
    for (const Case& c : {Case{"ORRERY:legacy_two_part:tooManyOutputs", "ORRERY:tooManyOutputs"},
                          Case{"OTHER:legacy_two_part:key", "OTHER:legacy_two_part:key"},
                          Case{"XORRERY:legacy_two_part:key", "XORRERY:legacy_two_part:key"},
                          Case{"ORRERY:legacy_two_part:x:key", "ORRERY:legacy_two_part:x:key"}}) {
        SCOPED_TRACE(c.message);
        EXPECT_EQ(lang::diagnostic::catalogueMessageIdentifier({c.message, {}}), c.logged);
    }
}
