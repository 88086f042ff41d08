// Tests of the warning log's common steps, reached through its three warn
// operations: last warning, record, event, issued-warning signal and callback.
#include "diagnostic/log/warning_log_xml.hpp"
#include "diagnostic/log/catalogue_message_identifier.hpp"
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include "tests/diagnostic/log/printf_argument_print.hpp"

#include <orrery/events/warning_events.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/dates.hpp>
#include <orrery/interp/virtual_machine.hpp>

#include <gtest/gtest.h>

#include <cstdarg>
#include <functional>
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

// Slot 2 as a C caller reaches it: the format's arguments follow it.
void warnWithFormat(WarningLogXML& log, WarningManagerContext* context, const std::string& identifier,
                    const std::u16string& message, bool wasDisabled, const char16_t* format, ...) {
    std::va_list cursor;
    va_start(cursor, format);
    log.warn(context, identifier, format, &cursor, message, wasDisabled);
    va_end(cursor);
}

// Slot 3 with interpreter values.
void warnWithValues(WarningLogXML& log, WarningManagerContext* context, const std::string& identifier,
                    const std::u16string& format, const std::vector<ValueArray>& values, const std::u16string& message,
                    bool wasDisabled) {
    std::vector<const ValueArray*> pointers;
    for (const auto& v : values) pointers.push_back(&v);
    log.warn(context, identifier, format, static_cast<std::int32_t>(pointers.size()), pointers.data(), message,
             wasDisabled);
}

const catalogue::MessageContent kNotOpen{"ORRERY:warning:LogFile:FileNotOpen", {std::u16string(u"a.xml")}};

// The three ways a warning reaches the log, each with its identifier and message.
struct WarnSlot {
    const char* name;
    std::string identifier;
    std::u16string message;
    std::function<void(WarningLogXML&, WarningManagerContext*, bool wasDisabled)> warn;
};

std::vector<WarnSlot> warnSlots() {
    return {
        {"catalogue message", "ORRERY:warning:LogFile:FileNotOpen", u"The log file 'a.xml' is not open.",
         [](WarningLogXML& log, WarningManagerContext* context, bool wasDisabled) {
             log.warn(context, std::nullopt, kNotOpen, wasDisabled);
         }},
        {"format and variable arguments", "test:variadic", u"seven 7",
         [](WarningLogXML& log, WarningManagerContext* context, bool wasDisabled) {
             warnWithFormat(log, context, "test:variadic", u"seven 7", wasDisabled, u"%s %d", "seven", 7);
         }},
        {"format and values", "test:values", u"seven 7",
         [](WarningLogXML& log, WarningManagerContext* context, bool wasDisabled) {
             warnWithValues(log, context, "test:values", u"%s %d", {ValueArray::chars(u"seven"), ValueArray::scalar(7)},
                            u"seven 7", wasDisabled);
         }},
    };
}

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

// ---- the common steps ----------------------------------------------------------------

TEST_F(WarningLogSteps, ADisabledWarningIsRememberedSignalledAndPublishedAsIssuedWarningEventWithoutCallback) {
    for (const WarnSlot& slot : warnSlots()) {
        SCOPED_TRACE(slot.name);
        forget();
        warning::utSetLastWarningMsg(context(), "", u"");
        slot.warn(log_, context(), true);
        expectLastWarning(slot.identifier, slot.message);
        ASSERT_EQ(signalled_.size(), 1U);
        EXPECT_TRUE(signalled_[0].getWasDisabled());
        EXPECT_EQ(signalled_[0].getIdentifier(), slot.identifier);
        ASSERT_EQ(disabledEvents_.size(), 1U);
        EXPECT_EQ(disabledEvents_[0], signalled_[0]);
        EXPECT_TRUE(enabledEvents_.empty());
        EXPECT_EQ(callbacks_, 0);
    }
}

TEST_F(WarningLogSteps, AnEnabledWarningIsPublishedAsIssuedEnabledWarningEventAndCallsTheCallback) {
    for (const WarnSlot& slot : warnSlots()) {
        SCOPED_TRACE(slot.name);
        forget();
        slot.warn(log_, context(), false);
        expectLastWarning(slot.identifier, slot.message);
        ASSERT_EQ(signalled_.size(), 1U);
        EXPECT_FALSE(signalled_[0].getWasDisabled());
        ASSERT_EQ(enabledEvents_.size(), 1U);
        EXPECT_EQ(enabledEvents_[0], signalled_[0]);
        EXPECT_TRUE(disabledEvents_.empty());
        EXPECT_EQ(callbacks_, 1);
    }
}

TEST_F(WarningLogSteps, TheRecordCarriesTheWarningItsStackAndItsTime) {
    const interp::FrameGuard outer({u"/work/outer.orr", u"outer", 4});
    const interp::FrameGuard inner({u"/work/inner.orr", u"inner", 9});
    const double before = interp::nowSerial();
    warnWithValues(log_, context(), "test:record", u"%d of %s",
                   {ValueArray::numericScalar(value::ClassId::Int32, 3), ValueArray::chars(u"x")}, u"3 of x", false);
    const double after = interp::nowSerial();

    ASSERT_EQ(signalled_.size(), 1U);
    const Warning& record = signalled_[0];
    EXPECT_EQ(record.getIdentifier(), "test:record");
    EXPECT_EQ(record.getMessage(), u"3 of x");
    EXPECT_EQ(record.getFormat(), u"%d of %s");
    EXPECT_EQ(record.getArguments(), (std::vector<PrintfArgument>{std::int32_t{3}, std::u16string(u"x")}));
    EXPECT_EQ(record.getStack(),
              (std::vector<StackFrame>{{u"/work/inner.orr", u"inner", 9}, {u"/work/outer.orr", u"outer", 4}}));
    EXPECT_GE(record.getTime(), before);
    EXPECT_LE(record.getTime(), after);
    EXPECT_FALSE(record.getWasDisabled());
}

TEST_F(WarningLogSteps, TheFormatSlotLogsTheRewrittenFormatAndItsTypedArguments) {
    warnWithFormat(log_, context(), "test:format", u"message", false, u"%ld items%n, %c!", -1L, nullptr, "y");
    ASSERT_EQ(signalled_.size(), 1U);
    EXPECT_EQ(signalled_[0].getFormat(), u"%ld items, %c!");
    EXPECT_EQ(signalled_[0].getArguments(), (std::vector<PrintfArgument>{std::int64_t{-1}, std::u16string(u"y")}));
}

TEST_F(WarningLogSteps, TheValuesSlotLogsNoArgumentsForACountOfZeroOrLess) {
    for (const std::int32_t count : {0, -1}) {
        forget();
        log_.warn(context(), "test:none", u"%d", count, nullptr, u"none", false);
        ASSERT_EQ(signalled_.size(), 1U);
        EXPECT_TRUE(signalled_[0].getArguments().empty());
        EXPECT_EQ(signalled_[0].getFormat(), u"%d");
    }
}

TEST_F(WarningLogSteps, TheCatalogueSlotLogsAnEmptyFormatAndTheMessageArguments) {
    const catalogue::MessageContent badArgument{"ORRERY:warning:badArgument", {3.0}};
    log_.warn(context(), std::nullopt, badArgument, false);
    log_.warn(context(), std::string("test:given"), kNotOpen, false);
    ASSERT_EQ(signalled_.size(), 2U);
    EXPECT_EQ(signalled_[0].getIdentifier(), "ORRERY:warning:badArgument");
    EXPECT_EQ(signalled_[0].getMessage(), badArgument.text());
    EXPECT_TRUE(signalled_[0].getFormat().empty());
    EXPECT_EQ(signalled_[0].getArguments(), (std::vector<PrintfArgument>{3.0}));
    // A given identifier replaces the message's own.
    EXPECT_EQ(signalled_[1].getIdentifier(), "test:given");
    EXPECT_EQ(signalled_[1].getArguments(), (std::vector<PrintfArgument>{std::u16string(u"a.xml")}));
    expectLastWarning("test:given", u"The log file 'a.xml' is not open.");
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

TEST_F(WarningLogSteps, WithNobodyToSeeTheRecordOnlyTheLastWarningAndTheCallbackRemain) {
    signal_.disconnect();
    LogWithoutPublisher log;
    log.warn(context(), "test:unseen", u"", 0, nullptr, u"unseen", false);
    EXPECT_EQ(log.published, 0);
    EXPECT_EQ(callbacks_, 1);
    expectLastWarning("test:unseen", u"unseen");
    // A listener on the machine's publisher is someone to see it.
    WarningLogXML seen;
    seen.warn(context(), "test:seen", u"", 0, nullptr, u"seen", true);
    EXPECT_EQ(disabledEvents_.size(), 1U);
}

TEST(WarningLogPublisher, IsTheCurrentMachinesOrNone) {
    const WarningLogXML log;
    EXPECT_EQ(log.eventPublisher(), interp::currentLocalVirtualMachine()->eventPublisher());
    std::shared_ptr<events::EventPublisher> elsewhere = std::make_shared<events::EventPublisher>();
    std::thread([&] { elsewhere = log.eventPublisher(); }).join();
    EXPECT_EQ(elsewhere, nullptr);
}

// ---- the identifier of a catalogue message -------------------------------------------

TEST(CatalogueMessageIdentifier, StandsForOrreryOnlyForItsLegacyTwoPartComponent) {
    struct Case {
        const char* message;
        const char* logged;
    };
    for (const Case& c : {Case{"ORRERY:legacy_two_part:tooManyOutputs", "ORRERY:tooManyOutputs"},
                          Case{"ORRERY:warning:badStack", "ORRERY:warning:badStack"},
                          Case{"OTHER:legacy_two_part:key", "OTHER:legacy_two_part:key"},
                          Case{"XORRERY:legacy_two_part:key", "XORRERY:legacy_two_part:key"},
                          Case{"ORRERY:legacy_two_part:x:key", "ORRERY:legacy_two_part:x:key"},
                          Case{"ORRERY:tooManyInputs", "ORRERY:tooManyInputs"}}) {
        SCOPED_TRACE(c.message);
        EXPECT_EQ(lang::diagnostic::catalogueMessageIdentifier({c.message, {}}), c.logged);
    }
}
