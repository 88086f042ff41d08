// The warning manager's context and its operations.
#include <orrery/text/identifiers.hpp>
#include <orrery/text/text.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <cstdarg>
#include <cstdio>
#include <memory>
#include <vector>

namespace orrery::warning {

struct WarningManagerContext {
    std::vector<std::pair<std::string, int>> states;  // insertion order
    int defaultState = kWarningOn;
    bool modes[3] = {false, true, false};
    std::u16string lastMessage;
    std::string lastIdentifier;
    std::string lastPrintedIdentifier;
    utWarningLog* log = nullptr;
    std::function<void()> callback;

    ~WarningManagerContext();
};

namespace {

struct Functions {
    utWarningLogFactoryFcn factory = nullptr;
    utWarningLogDestroyFcn destroy = nullptr;
};

Functions& functions() {
    static Functions f;
    return f;
}

std::unique_ptr<WarningManagerContext>& currentContext() {
    static auto context = std::make_unique<WarningManagerContext>();
    return context;
}

bool isAll(std::string_view identifier) { return text::equalsIgnoreCaseAscii(identifier, "all"); }

}  // namespace

WarningManagerContext::~WarningManagerContext() {
    if (log != nullptr && functions().destroy != nullptr) functions().destroy(log);
}

utWarningLog::utWarningLog() = default;
utWarningLog::utWarningLog(const utWarningLog&) = default;
utWarningLog::~utWarningLog() = default;
utWarningLog& utWarningLog::operator=(const utWarningLog&) = default;

WarningManagerContext* utGetWarningManagerContext() { return currentContext().get(); }

void utSetWarningManagerContextPresent(bool present) {
    auto& context = currentContext();
    if (present && !context) context = std::make_unique<WarningManagerContext>();
    if (!present) context.reset();
}

int utGetWarningStatus(WarningManagerContext* context, std::string_view identifier) {
    if (isAll(identifier)) return context->defaultState;
    for (const auto& [id, state] : context->states)
        if (id == identifier) return state;
    return context->defaultState;
}

void utSetWarningStatus(WarningManagerContext* context, std::string_view identifier, int state) {
    if (isAll(identifier)) {
        context->defaultState = state;
        return;
    }
    for (auto& [id, current] : context->states)
        if (id == identifier) {
            current = state;
            return;
        }
    context->states.emplace_back(std::string(identifier), state);
}

void utIterateOverWarningStatuses(WarningManagerContext* context,
                                  const std::function<void(const std::string&, int)>& visit) {
    for (const auto& [id, state] : context->states) visit(id, state);
}

std::size_t utCountWarningsInWarningManager(WarningManagerContext* context) { return context->states.size(); }

void utSetWarningMode(WarningManagerContext* context, int mode, bool on) {
    if (mode >= kModeDebug && mode <= kModeVerbose) context->modes[mode] = on;
}

bool utIsWarningModeOn(WarningManagerContext* context, int mode) {
    return mode >= kModeDebug && mode <= kModeVerbose && context->modes[mode];
}

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

utWarningLog* utGetWarningLog(WarningManagerContext* context) { return context->log; }
void utSetWarningLog(WarningManagerContext* context, utWarningLog* log) { context->log = log; }
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
    std::vfprintf(stdout, format, arguments);
    va_end(arguments);
    std::fflush(stdout);
}

}  // namespace orrery::warning
