// Reading the orrery command's arguments.
#include "shell/startup/command_line.hpp"

#include "shell/startup/startup_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

namespace orrery::shell::startup {
namespace {

// The value of the option at args[i], which must follow it.
const std::string& optionValue(const std::vector<std::string>& args, std::size_t i) {
    if (i + 1 >= args.size()) except::throwMessage(MissingValue(text::utf8ToUtf16Lossy(args[i])));
    return args[i + 1];
}

SummaryFormat summaryFormat(const std::string& name) {
    if (name == "text") return SummaryFormat::Text;
    if (name == "csv") return SummaryFormat::Csv;
    if (name == "json") return SummaryFormat::Json;
    except::throwMessage(BadSummaryFormat(text::utf8ToUtf16Lossy(name)));
}

// Reads the options that come before what to run; answers where they end.
std::size_t readLeadingOptions(const std::vector<std::string>& args, Options& options, bool& formatGiven) {
    std::size_t i = 0;
    for (; i < args.size(); i += 2) {
        const std::string& option = args[i];
        if (option == "-W") {
            options.warningSettings.push_back(parseWarningSetting(optionValue(args, i), u"-W"));
        } else if (option == "--log-summary") {
            options.mode = Options::Mode::LogSummary;
            options.logFile = optionValue(args, i);
        } else if (option == "--format") {
            options.summaryFormat = summaryFormat(optionValue(args, i));
            formatGiven = true;
        } else {
            break;
        }
    }
    return i;
}

}  // namespace

Options parseCommandLine(const std::vector<std::string>& args) {
    Options options;
    bool formatGiven = false;
    const std::size_t start = readLeadingOptions(args, options, formatGiven);
    const bool summary = options.mode == Options::Mode::LogSummary;
    if (formatGiven && !summary) except::throwMessage(FormatWithoutSummary());
    if (start == args.size()) return options;
    const std::string& first = args[start];
    const auto rest = args.begin() + static_cast<std::ptrdiff_t>(start) + 1;
    if (summary) {
        except::throwMessage(ExtraArgument(text::utf8ToUtf16Lossy(first)));
    } else if (first == "--help" || first == "-h") {
        options.mode = Options::Mode::Help;
    } else if (first == "--version") {
        options.mode = Options::Mode::Version;
    } else if (first == "-e") {
        if (rest == args.end()) except::throwMessage(MissingText());
        options.mode = Options::Mode::Text;
        options.text = *rest;
        options.scriptArgs.assign(rest + 1, args.end());
    } else if (first.size() > 1 && first[0] == '-') {  // a lone "-" is the script on standard input
        except::throwMessage(UnknownOption(text::utf8ToUtf16Lossy(first)));
    } else {
        options.mode = Options::Mode::Script;
        options.script = first;
        options.scriptArgs.assign(rest, args.end());
    }
    return options;
}

std::string usageText() {
    return "Usage: orrery [-W SETTING]... [FILE.orr [ARGS...] | - [ARGS...] | -e CODE [ARGS...]]\n"
           "       orrery [-W SETTING]... --log-summary LOG.xml [--format text|csv|json]\n"
           "       orrery --help | --version\n"
           "\n"
           "Runs a script file (- reads it from standard input), runs the code given\n"
           "with -e, or, with no arguments, opens an interactive prompt with line\n"
           "editing and history (~/.orrery_history).\n"
           "Any ARGS are given to the script as the cell array argv.\n"
           "\n"
           "Options (before the script, the code or the prompt):\n"
           "  -W SETTING             set a warning state before anything runs. SETTING is\n"
           "                         STATE:IDENTIFIER, as warning(STATE, IDENTIFIER) would\n"
           "                         set it, or STATE alone for all warnings; STATE is on,\n"
           "                         off or error (-W off:my:id, -W error:my:id, -W off).\n"
           "                         Repeatable; applied in order.\n"
           "  --log-summary LOG.xml  read a warning log and print, per identifier, how\n"
           "                         many warnings it holds, how many were disabled, and\n"
           "                         the first and last time (ISO 8601, local standard\n"
           "                         time with its offset); most frequent first.\n"
           "  --format FORMAT        how --log-summary prints: text (an aligned table,\n"
           "                         the default), csv or json.\n"
           "\n"
           "Environment:\n"
           "  ORRERY_WARNINGS        comma-separated warning settings of the -W form\n"
           "                         (off,on:my:id), applied before those of -W.\n"
           "  ORRERY_MODULE_PATH     the diagnostic module libdiagnostic.so, or the folder\n"
           "                         holding it; by default it is loaded from beside the\n"
           "                         program.\n"
           "\n"
           "Exit status: 0; 1 when an error was not caught, the module could not be\n"
           "loaded or a log could not be read; 2 for a wrong command line or warning\n"
           "setting; 70 after an internal error; exit(N) and quit(N) end with N.\n";
}

std::string versionText() { return "orrery 0.1.0 (diagnostic module shell)\n"; }

}  // namespace orrery::shell::startup
