// Reading the orrery command's arguments.
#include "shell/startup/command_line.hpp"

#include "shell/startup/startup_messages.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/text/text.hpp>

namespace orrery::shell::startup {

Options parseCommandLine(const std::vector<std::string>& args) {
    Options options;
    if (args.empty()) return options;
    const std::string& first = args[0];
    if (first == "--help" || first == "-h") {
        options.mode = Options::Mode::Help;
    } else if (first == "--version") {
        options.mode = Options::Mode::Version;
    } else if (first == "-e") {
        if (args.size() < 2) except::throwMessage(MissingText());
        options.mode = Options::Mode::Text;
        options.text = args[1];
        options.scriptArgs.assign(args.begin() + 2, args.end());
    } else if (first.size() > 1 && first[0] == '-') {  // a lone "-" is the script on standard input
        except::throwMessage(UnknownOption(text::utf8ToUtf16(first)));
    } else {
        options.mode = Options::Mode::Script;
        options.script = first;
        options.scriptArgs.assign(args.begin() + 1, args.end());
    }
    return options;
}

std::string usageText() {
    return "Usage: orrery [FILE.orr [ARGS...] | - [ARGS...] | -e CODE [ARGS...] | --help | --version]\n"
           "\n"
           "Runs a script file (- reads it from standard input), runs the code given\n"
           "with -e, or, with no arguments, opens an interactive prompt with line\n"
           "editing and history (~/.orrery_history).\n"
           "Any ARGS are given to the script as the cell array argv.\n"
           "\n"
           "The diagnostic module libdiagnostic.so is loaded from beside the program,\n"
           "or from ORRERY_MODULE_PATH (the module itself or the folder holding it).\n"
           "\n"
           "Exit status: 0, or 1 when an error was not caught (or the module could not\n"
           "be loaded), or 70 after an internal error; exit(N) and quit(N) end with N.\n";
}

std::string versionText() { return "orrery 0.1.0 (diagnostic module shell)\n"; }

}  // namespace orrery::shell::startup
