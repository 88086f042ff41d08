// The help built-in and how it shows the entries of help_entries.cpp.
#include "shell/startup/builtin_help.hpp"

#include "shell/builtins/builtin_support.hpp"

#include <orrery/console/console_sink.hpp>
#include <orrery/except/argument_errors.hpp>
#include <orrery/interp/function_table.hpp>
#include <orrery/value/value_array.hpp>

#include <algorithm>
#include <utility>
#include <vector>

namespace orrery::shell::startup {
namespace {

constexpr std::string_view kIndent = "  ";

// The parts of text between separators (none for an empty text).
std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + separator.size(), text.size()));
    }
    return parts;
}

std::vector<std::string_view> lines(std::string_view text) { return split(text, "\n"); }

}  // namespace

std::vector<std::string_view> namesIn(std::string_view list) { return split(list, ", "); }

namespace {

// The forms as two columns: every call padded to the widest one.
std::string formsText(std::string_view forms) {
    std::vector<std::pair<std::string_view, std::string_view>> rows;
    std::size_t width = 0;
    for (const std::string_view line : lines(forms)) {
        const std::size_t tab = line.find('\t');
        const std::string_view call = line.substr(0, tab);
        rows.emplace_back(call, tab == std::string_view::npos ? std::string_view{} : line.substr(tab + 1));
        width = std::max(width, call.size());
    }
    std::string text;
    for (const auto& [call, effect] : rows) {
        text.append(kIndent).append(call);
        if (!effect.empty()) text.append(width - call.size() + 2, ' ').append(effect);
        text += '\n';
    }
    return text;
}

std::string indented(std::string_view text) {
    std::string result;
    for (const std::string_view line : lines(text)) result.append(kIndent).append(line).append("\n");
    return result;
}

void bnHelp(std::int32_t nlhs, value::ValueArrayPtr* plhs, std::int32_t nrhs, const value::ValueArray* const* prhs) {
    except::checkArgumentCounts(nlhs, 1, nrhs, 0, 1);
    const std::string text = nrhs == 0 ? helpListing() : helpText(builtins::textArgumentUtf8(*prhs[0], "help", 1));
    if (nlhs > 0) {
        plhs[0] = value::makeValue(value::ValueArray::charsFromUtf8(text));
        return;
    }
    console::consoleWrite(console::ConsoleStream::Output, text);
}

}  // namespace

const HelpEntry* findHelp(std::string_view name) {
    const std::span<const HelpEntry> entries = helpEntries();
    const auto found = std::find_if(entries.begin(), entries.end(), [name](const HelpEntry& entry) {
        return entry.name == name || std::ranges::count(namesIn(entry.aliases), name) > 0;
    });
    return found == entries.end() ? nullptr : &*found;
}

// The groups in the order their first entries stand, each name with its summary.
std::string helpListing() {
    const std::span<const HelpEntry> entries = helpEntries();
    std::vector<std::string_view> groups;
    for (const auto& entry : entries)
        if (std::ranges::count(groups, entry.group) == 0) groups.push_back(entry.group);
    std::string text = "Functions (help NAME describes one):\n";
    for (const std::string_view group : groups) {
        std::size_t width = 0;
        for (const auto& entry : entries)
            if (entry.group == group) width = std::max(width, entry.name.size());
        text.append("\n").append(group).append(":\n");
        for (const auto& entry : entries) {
            if (entry.group != group) continue;
            text.append(kIndent).append(entry.name).append(width - entry.name.size() + 2, ' ');
            text.append(entry.summary).append("\n");
        }
    }
    return text;
}

std::string helpText(std::string_view name) {
    const HelpEntry* entry = findHelp(name);
    if (entry == nullptr) return "No help for " + std::string(name) + ".\n";
    std::string text = std::string(entry->name) + ": " + std::string(entry->summary) + "\n\n";
    text += formsText(entry->forms);
    text += "\nOutputs:\n" + indented(entry->outputs);
    text += "Example:\n" + indented(entry->example);
    if (!entry->aliases.empty()) text += "Also: " + std::string(entry->aliases) + "\n";
    text += "See also: " + std::string(entry->seeAlso) + "\n";
    return text;
}

void registerHelp() { interp::registerFunction("help", bnHelp); }

}  // namespace orrery::shell::startup
