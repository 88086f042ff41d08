// The help texts of the diagnostic functions and the help built-in.
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

// One entry per language name: the module's bound built-ins, the one it
// registers itself, the log functions, the Warning class, and help.
constexpr HelpEntry kEntries[] = {
    {"error", "raise an error",
     "error(msg)\tthe message msg, taken literally, with no identifier\n"
     "error(fmt, args...)\tthe message sprintf(fmt, args...), no identifier\n"
     "error(id, fmt, args...)\tthe same with the identifier id ('component:mnemonic')\n"
     "error(msgObject)\tthe catalogue message of a message object, with its identifier\n"
     "error(s)\tfrom a structure with the fields identifier, message, stack (each optional)\n"
     "error('')\tan empty message (or [], struct([])) raises nothing",
     "none", "error('orbit:lost', 'Lost contact after %d orbits.', 3)"},
    {"assert", "raise an error when a condition is false",
     "assert(cond)\tthe error ORRERY:assertion:failed when cond is false\n"
     "assert(cond, msg)\tthe message msg when cond is false\n"
     "assert(cond, id, fmt, args...)\tan error built as error(id, fmt, args...) builds it\n"
     "\tcond is a logical scalar or a scalar that converts to one; the error is\n"
     "\treported under the name assert; nothing after a true cond is examined",
     "none", "assert(moons == 2, 'mars:moons', 'Mars has 2 moons, not %d.', moons)"},
    {"rethrow", "raise an error described by a structure",
     "rethrow(s)\tthe error with s.identifier, s.message and s.stack (each optional);\n"
     "\twithout a stack field, the current call stack less its innermost frame\n"
     "rethrow(err)\ta caught error object raised again with its own stack",
     "none", "rethrow(struct('identifier', 'tour:crashed', 'message', 'The lander crashed.'))"},
    {"lasterr", "the message and identifier of the last error",
     "msg = lasterr\tthe last error's message\n"
     "[msg, id] = lasterr\tits message and identifier\n"
     "lasterr(msg)\treplace the last error by msg, with no identifier\n"
     "lasterr(msg, id)\treplace it by msg with the identifier id\n"
     "lasterr('-hotlinks', ...)\tthe message with its hyperlink mark-up kept",
     "msg (char), id (char); a call that replaces the record returns the values before it", "[msg, id] = lasterr"},
    {"lasterror", "the last error as a structure, or replace it",
     "s = lasterror\tthe last error: fields message, identifier, stack\n"
     "lasterror(s)\treplace it by the structure s (fields identifier, message, stack)\n"
     "lasterror('reset')\tclear it: empty message and identifier, empty stack",
     "s (1-by-1 struct); a call that replaces the record returns the error before it",
     "last = lasterror(); disp(last.identifier)"},
    {"warning", "issue a warning, or set and show warning states",
     "warning(msg)\tissue a warning with the message msg\n"
     "warning(id, fmt, args...)\tissue it with the identifier id and the message sprintf(fmt, args...)\n"
     "warning(msgObject)\tissue the catalogue message of a message object\n"
     "warning('')\tclear the last warning; nothing is printed\n"
     "warning on|off ID\tturn the warning ID on or off ('all': every warning, replacing the states set per ID)\n"
     "warning error ID\tmake the warning ID raise an error instead\n"
     "warning off last\tturn off the last warning printed\n"
     "warning query ID\tshow the state of ID; warning alone shows every state\n"
     "warning on|off backtrace\tshow or hide the line that issued a printed warning\n"
     "warning on|off verbose\tshow or hide the hint on how to turn a warning off\n"
     "warning(s)\trestore the states in the structure s (fields identifier, state)",
     "s = warning(...) with a state command: the states before it (fields identifier, state)\n"
     "[msg, id] = warning(id, fmt, ...): the last warning before this one",
     "s = warning('off', 'orbit:drift');   % later, warning(s) restores the state"},
    {"lastwarn", "the message and identifier of the last warning",
     "msg = lastwarn\tthe last warning's message, shown or not\n"
     "[msg, id] = lastwarn\tits message and identifier\n"
     "lastwarn(msg)\treplace the last warning by msg, with no identifier\n"
     "lastwarn(msg, id)\treplace it by msg with the identifier id",
     "msg (char), id (char); a call that replaces the record returns the values before it", "[msg, id] = lastwarn"},
    {"ResetLastPrintedWarning", "forget the last printed warning",
     "ResetLastPrintedWarning()\tuntil the next printed warning, 'last' names none", "none",
     "ResetLastPrintedWarning(); warning query last"},
    {"orrery.internal.diagnostic.log.open", "write every issued warning to an XML log file",
     "orrery.internal.diagnostic.log.open(file)\tstart logging to file (made absolute, '.xml' added when it\n"
     "\thas no extension); a new file is created, an existing log is appended to",
     "none", "orrery.internal.diagnostic.log.open('flight.xml')"},
    {"orrery.internal.diagnostic.log.close", "stop writing warnings to an XML log file",
     "orrery.internal.diagnostic.log.close(file)\tstop logging to file (named as for open)", "none",
     "orrery.internal.diagnostic.log.close('flight.xml')"},
    {"orrery.internal.diagnostic.log.load", "read an XML warning log back",
     "w = orrery.internal.diagnostic.log.load(file)\tthe warnings of file, in the order they were written",
     "w: 1-by-N orrery.internal.diagnostic.Warning array", "w = orrery.internal.diagnostic.log.load('flight.xml')"},
    {"orrery.internal.diagnostic.Warning", "one logged warning (the elements that load returns)",
     "w.identifier, w.message\tthe warning's identifier and message\n"
     "w.format, w.arguments\tits format and format arguments (cell)\n"
     "w.stack, w.time\twhere it was issued (file, name, line) and when (serial day number)\n"
     "w.wasDisabled\ttrue when the warning was off when issued\n"
     "a == b, a ~= b, isequal(a, b)\tcompare warnings element by element, or whole arrays\n"
     "[s, k] = sort(w)\tsort by time, then identifier; k: where each came from",
     "as listed with each form", "w(2).wasDisabled"},
    {"help", "help for the diagnostic functions",
     "help\tlist the functions that have help\n"
     "help NAME\tdescribe NAME: its forms, outputs and an example",
     "text = help(...): the text, returned instead of printed", "help lastwarn"},
};

constexpr std::string_view kIndent = "  ";

std::vector<std::string_view> lines(std::string_view text) {
    std::vector<std::string_view> result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        result.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

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

std::span<const HelpEntry> helpEntries() { return kEntries; }

const HelpEntry* findHelp(std::string_view name) {
    const auto* found = std::find_if(std::begin(kEntries), std::end(kEntries),
                                     [name](const HelpEntry& entry) { return entry.name == name; });
    return found == std::end(kEntries) ? nullptr : found;
}

std::string helpListing() {
    std::size_t width = 0;
    for (const auto& entry : kEntries) width = std::max(width, entry.name.size());
    std::string text = "Diagnostic functions (help NAME describes one):\n";
    for (const auto& entry : kEntries) {
        text.append(kIndent).append(entry.name).append(width - entry.name.size() + 2, ' ');
        text.append(entry.summary).append("\n");
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
    return text;
}

void registerHelp() { interp::registerFunction("help", bnHelp); }

}  // namespace orrery::shell::startup
