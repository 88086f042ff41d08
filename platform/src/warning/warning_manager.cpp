// The warning manager's operations on the context of a virtual machine.
#include "warning/warning_manager_context.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/interp/virtual_machine.hpp>
#include <orrery/text/identifiers.hpp>
#include <orrery/text/text.hpp>

#include <cstdarg>
#include <cstdio>
#include <string>
#include <utility>

namespace orrery::warning {
namespace {

constexpr std::string_view kComponent = "warning manager";

struct Functions {
    utWarningLogFactoryFcn factory = nullptr;
    utWarningLogDestroyFcn destroy = nullptr;
};

Functions& functions() {
    static Functions f;
    return f;
}

bool isAll(std::string_view identifier) { return text::equalsIgnoreCaseAscii(identifier, "all"); }

WarningState checkedState(WarningState state) {
    if (state < WarningState::Off || state > WarningState::Error)
        except::internalError(kComponent, std::to_string(static_cast<int>(state)) + " is not a warning state");
    return state;
}

// The mode's place in the context's switches.
std::size_t modeIndex(WarningMode mode) {
    if (mode < WarningMode::Debug || mode > WarningMode::Verbose)
        except::internalError(kComponent, std::to_string(static_cast<int>(mode)) + " is not a warning mode");
    return static_cast<std::size_t>(mode);
}

}  // namespace

utWarningLog::utWarningLog() = default;
utWarningLog::utWarningLog(const utWarningLog&) = default;
utWarningLog::~utWarningLog() = default;
utWarningLog& utWarningLog::operator=(const utWarningLog&) = default;

WarningManagerContext* utGetWarningManagerContext() {
    const interp::VirtualMachine* machine = interp::currentLocalVirtualMachine();
    return machine != nullptr ? machine->warningManagerContext() : nullptr;
}

WarningState utGetWarningStatus(WarningManagerContext* context, std::string_view identifier) {
    if (isAll(identifier)) return context->defaultState;
    const WarningState* own = context->states.find(identifier);
    return own != nullptr ? *own : context->defaultState;
}

void utSetWarningStatus(WarningManagerContext* context, std::string_view identifier, WarningState state) {
    checkedState(state);
    if (isAll(identifier)) {
        // A new default replaces every identifier's own state.
        context->defaultState = state;
        context->states.clear();
        return;
    }
    context->states.set(identifier, state);
}

void utIterateOverWarningStatuses(WarningManagerContext* context,
                                  const std::function<void(const std::string&, WarningState)>& visit) {
    context->states.forEach(visit);
}

std::size_t utCountWarningsInWarningManager(WarningManagerContext* context) { return context->states.size(); }

void utSetWarningMode(WarningManagerContext* context, WarningMode mode, bool on) {
    context->modes[modeIndex(mode)] = on;
}

bool utIsWarningModeOn(WarningManagerContext* context, WarningMode mode) { return context->modes[modeIndex(mode)]; }

void utGetLastWarningMsg(WarningManagerContext* context, std::u16string& message, std::string& identifier) {
    message = context->lastMessage;
    identifier = context->lastIdentifier;
}

void utSetLastWarningMsg(WarningManagerContext* context, std::string_view identifier, std::u16string_view message) {
    context->lastIdentifier = identifier;
    context->lastMessage = message;
}

std::string utGetLastPrintedWarningId(WarningManagerContext* context) { return context->lastPrintedIdentifier; }

void utSetLastPrintedWarningId(WarningManagerContext* context, std::string_view identifier) {
    context->lastPrintedIdentifier = identifier;
}

utWarningLog* utGetWarningLog(WarningManagerContext* context) { return context->log.get(); }

void utSetWarningLog(WarningManagerContext* context, utWarningLog* log) {
    if (log == context->log.get()) return;
    // The slot holds the new log before the old one is destroyed, so that the
    // old log's destructor sees a consistent context.
    const OwnedWarningLog previous = std::exchange(context->log, OwnedWarningLog(log, {functions().destroy}));
}

void utSetWarningLogFactoryFcn(utWarningLogFactoryFcn factory) { functions().factory = factory; }
void utSetWarningLogDestroyFcn(utWarningLogDestroyFcn destroy) { functions().destroy = destroy; }
utWarningLogFactoryFcn utGetWarningLogFactoryFcn() { return functions().factory; }
utWarningLogDestroyFcn utGetWarningLogDestroyFcn() { return functions().destroy; }

void utRegisterWarningCallback(WarningManagerContext* context, std::function<void()> callback) {
    context->callback = std::move(callback);
}

void utCallRegisteredWarningCallback(WarningManagerContext* context) {
    if (context != nullptr && context->callback) context->callback();
}

bool utIsValidMessageIdentifier(std::string_view identifier) {
    std::size_t components = 0;
    std::size_t i = 0;
    while (true) {
        if (i >= identifier.size() || !text::isIdentifierStart(identifier[i])) return false;
        ++i;
        while (i < identifier.size() && text::isIdentifierPart(identifier[i], text::IdentifierKind::MessageComponent))
            ++i;
        ++components;
        if (i == identifier.size()) return components >= 2;
        if (identifier[i] != ':') return false;
        ++i;
    }
}

void utPrintf(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(static_cast<std::size_t>(length > 0 ? length : 0), '\0');
    if (length > 0) std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    if (length < 0) except::internalError(kComponent, "utPrintf cannot render its format");
    console::consoleWrite(console::ConsoleStream::Output, text);
}

}  // namespace orrery::warning
