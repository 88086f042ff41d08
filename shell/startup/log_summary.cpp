// Reading a warning log through the module and counting its warnings per identifier.
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
#include <map>

namespace orrery::shell::startup {
namespace {

constexpr std::string_view kLoadFunction = "orrery.internal.diagnostic.log.load";

value::ValueArray loadWarningObjects(const std::string& file) {
    const auto name = value::ValueArray::charsFromUtf8(file);
    const value::ValueArray* inputs[] = {&name};
    value::ValueArrayPtr output;
    try {
        try {
            ocos::callNamespaceFunction(kLoadFunction, 1, &output, 1, inputs);
        } catch (...) {
            eval::rethrowAsUserError(std::string(kLoadFunction));
        }
    } catch (const except::QException& failure) {
        except::throwMessage(
            LogSummaryFailed(text::utf8ToUtf16Lossy(file), text::utf8ToUtf16(failure.identifier()), failure.message()));
    }
    if (!output) except::internalError("shell", "the log's load function gave no value");
    return std::move(*output);
}

}  // namespace

std::vector<LoggedWarning> readLoggedWarnings(const std::string& file) {
    const value::ValueArray objects = loadWarningObjects(file);
    std::vector<LoggedWarning> warnings;
    warnings.reserve(objects.numel());
    for (std::size_t i = 0; i < objects.numel(); ++i) {
        warnings.push_back({text::utf16ToUtf8(ocos::getProperty(objects, i, "identifier").text()),
                            ocos::getProperty(objects, i, "wasDisabled").logicalAt(0),
                            ocos::getProperty(objects, i, "time").realAt(0)});
    }
    return warnings;
}

std::vector<IdentifierSummary> summariseWarnings(const std::vector<LoggedWarning>& warnings) {
    std::map<std::string, IdentifierSummary> byIdentifier;
    for (const LoggedWarning& warning : warnings) {
        auto [entry, added] = byIdentifier.try_emplace(warning.identifier);
        IdentifierSummary& summary = entry->second;
        if (added) summary = {warning.identifier, 0, 0, warning.time, warning.time};
        ++summary.count;
        if (warning.wasDisabled) ++summary.disabled;
        summary.first = std::min(summary.first, warning.time);
        summary.last = std::max(summary.last, warning.time);
    }
    std::vector<IdentifierSummary> summary;
    summary.reserve(byIdentifier.size());
    for (auto& [identifier, entry] : byIdentifier) summary.push_back(std::move(entry));
    // the map gave identifier order; a stable sort by count keeps it among equal counts
    std::stable_sort(summary.begin(), summary.end(),
                     [](const IdentifierSummary& a, const IdentifierSummary& b) { return a.count > b.count; });
    return summary;
}

void printLogSummary(const std::string& file, SummaryFormat format) {
    console::consoleWrite(console::ConsoleStream::Output,
                          renderSummary(summariseWarnings(readLoggedWarnings(file)), format));
}

}  // namespace orrery::shell::startup
