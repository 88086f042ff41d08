// WarningLogXML: the common logging steps and the three ways a warning arrives.
#include "diagnostic/log/warning_log_xml.hpp"

#include "diagnostic/log/catalogue_message_identifier.hpp"
#include "diagnostic/log/format_analysis.hpp"
#include "diagnostic/warnings/issued_warning_signal.hpp"

#include <orrery/events/warning_events.hpp>
#include <orrery/interp/call_stack.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/services/services.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace orrery::lang::diagnostic {
namespace {

constexpr std::string_view kSuppressCommandLineOutput = "SuppressCommandLineOutput";

// The output filter's answer: a warning is printed unless the switch is
// registered and on.
bool commandLineOutputWanted() {
    return !services::svIsFeatureRegistered(kSuppressCommandLineOutput) ||
           !services::svIsFeatureEnabled(kSuppressCommandLineOutput);
}

PrintfArgument argumentOfMessageArgument(const catalogue::MessageArgument& argument) {
    if (const auto* text = std::get_if<std::u16string>(&argument)) return *text;
    return *std::get_if<double>(&argument);
}

}  // namespace

WarningLogXML::WarningLogXML() : outputFilter_([](std::u16string& /*text*/) { return commandLineOutputWanted(); }) {}

WarningLogXML::~WarningLogXML() = default;

// ---- the three ways a warning arrives ------------------------------------------------

void WarningLogXML::warn(warning::WarningManagerContext* context, const std::optional<std::string>& identifier,
                         const catalogue::MessageContent& message, bool wasDisabled) {
    logWarning(context, identifier ? *identifier : catalogueMessageIdentifier(message), message.text(), wasDisabled,
               [&message](Warning& record) {
                   std::vector<PrintfArgument> arguments;
                   arguments.reserve(message.arguments.size());
                   for (const auto& argument : message.arguments)
                       arguments.push_back(argumentOfMessageArgument(argument));
                   record.setArguments(std::move(arguments));
               });
}

void WarningLogXML::warn(warning::WarningManagerContext* context, const std::string& identifier,
                         const std::u16string& format, std::va_list* arguments, const std::u16string& message,
                         bool wasDisabled) {
    logWarning(context, identifier, message, wasDisabled, [&format, arguments](Warning& record) {
        AnalysedFormat analysed = analyseFormat(format, arguments);
        record.setFormat(std::move(analysed.format));
        record.setArguments(std::move(analysed.arguments));
    });
}

void WarningLogXML::warn(warning::WarningManagerContext* context, const std::string& identifier,
                         std::u16string_view format, std::int32_t count, const value::ValueArray* const* values,
                         const std::u16string& message, bool wasDisabled) {
    logWarning(context, identifier, message, wasDisabled, [format, count, values](Warning& record) {
        record.setFormat(std::u16string(format));
        std::vector<PrintfArgument> arguments;
        if (count > 0) arguments.reserve(static_cast<std::size_t>(count));
        for (std::int32_t i = 0; i < count; ++i) arguments.push_back(argumentOfValue(*values[i]));
        record.setArguments(std::move(arguments));
    });
}

// ---- publishing --------------------------------------------------------------------------

std::shared_ptr<events::EventPublisher> WarningLogXML::eventPublisher() const {
    try {
        const interp::VirtualMachine* machine = interp::currentLocalVirtualMachine();
        return machine != nullptr ? machine->eventPublisher() : nullptr;
    } catch (...) {
        // Asking for the publisher never fails the warning: no publisher, no event.
        return nullptr;
    }
}

void WarningLogXML::publishIssuedWarning(const Warning& warning) const {
    const auto publisher = eventPublisher();
    if (!publisher) return;
    if (warning.getWasDisabled())
        publisher->publish(events::IssuedWarningEvent(warning));
    else
        publisher->publish(events::IssuedEnabledWarningEvent(warning));
}

// ---- the common steps ------------------------------------------------------------------

template <class AddFormatAndArguments>
void WarningLogXML::logWarning(warning::WarningManagerContext* context, const std::string& identifier,
                               const std::u16string& message, bool wasDisabled,
                               AddFormatAndArguments&& addFormatAndArguments) {
    if (context != nullptr) warning::utSetLastWarningMsg(context, identifier, message);
    if (recordIsObserved()) {
        Warning record;
        record.setIdentifier(identifier);
        record.setMessage(message);
        std::forward<AddFormatAndArguments>(addFormatAndArguments)(record);
        record.setWasDisabled(wasDisabled);
        const value::ValueArray stack = interp::currentStack();
        record.setStack(&stack);
        record.timestamp();
        writeToOpenLogs(record);  // a failure here skips the event, the signal and the callback
        publishIssuedWarning(record);
        emitIssuedWarning(record);
    }
    if (!wasDisabled) warning::utCallRegisteredWarningCallback(context);
}

// Building the record (call stack, time stamp) is the costly part of logging;
// it is skipped when no open log, signal slot or event listener would see it.
bool WarningLogXML::recordIsObserved() const {
    if (!openLogs_.empty() || hasIssuedWarningSlots()) return true;
    const auto publisher = eventPublisher();
    return publisher && publisher->hasListeners();
}

}  // namespace orrery::lang::diagnostic
