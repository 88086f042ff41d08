// A warning log counted per identifier through the module.
#include "shell/startup/log_summary.hpp"

#include "shell/eval/user_error.hpp"
#include "shell/startup/startup_messages.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/internal_error.hpp>
#include <orrery/except/qexception.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/dispatch.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/text/text.hpp>
#include <orrery/value/value_array.hpp>

#include <algorithm>

namespace orrery::shell::startup {
namespace {

constexpr std::string_view kSummaryFunction = "orrery.internal.diagnostic.log.summary";

value::ValueArray summaryStructure(const std::string& file) {
    const auto name = value::ValueArray::charsFromUtf8(file);
    const value::ValueArray* inputs[] = {&name};
    value::ValueArrayPtr output;
    try {
        try {
            ocos::callNamespaceFunction(kSummaryFunction, 1, &output, 1, inputs);
        } catch (...) {
            eval::rethrowAsUserError(std::string(kSummaryFunction));
        }
    } catch (const except::QException& failure) {
        except::throwMessage(
            LogSummaryFailed(text::utf8ToUtf16Lossy(file), text::utf8ToUtf16(failure.identifier()), failure.message()));
    }
    if (!output) except::internalError("shell", "the log's summary function gave no value");
    return std::move(*output);
}

double numberField(const value::ValueArray& summary, std::size_t i, std::string_view name) {
    const value::ValueArray* field = summary.field(i, name);
    if (field == nullptr || !field->isScalar()) except::internalError("shell", "a log summary lacks a number");
    return field->realAt(0);
}

}  // namespace

std::vector<IdentifierSummary> readLogSummary(const std::string& file) {
    const value::ValueArray summary = summaryStructure(file);
    std::vector<IdentifierSummary> entries;
    entries.reserve(summary.numel());
    for (std::size_t i = 0; i < summary.numel(); ++i) {
        const value::ValueArray* identifier = summary.field(i, "identifier");
        const value::ValueArray* timeline = summary.field(i, "timeline");
        if (identifier == nullptr || timeline == nullptr) except::internalError("shell", "a log summary lacks a field");
        IdentifierSummary& entry = entries.emplace_back();
        entry.identifier = identifier->textUtf8();
        entry.count = static_cast<std::size_t>(numberField(summary, i, "count"));
        entry.disabled = static_cast<std::size_t>(numberField(summary, i, "disabled"));
        entry.first = numberField(summary, i, "first");
        entry.last = numberField(summary, i, "last");
        for (std::size_t k = 0; k < timeline->numel(); ++k) entry.timeline.push_back(timeline->realAt(k));
    }
    orderSummary(entries);
    return entries;
}

void orderSummary(std::vector<IdentifierSummary>& summary) {
    std::sort(summary.begin(), summary.end(), [](const IdentifierSummary& a, const IdentifierSummary& b) {
        return a.count != b.count ? a.count > b.count : a.identifier < b.identifier;
    });
}

void printLogSummary(const std::string& file, SummaryFormat format) {
    console::consoleWrite(console::ConsoleStream::Output, renderSummary(readLogSummary(file), format));
}

}  // namespace orrery::shell::startup
