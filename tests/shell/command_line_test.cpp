// The orrery command's arguments.
#include "shell/startup/command_line.hpp"

#include "tests/support/expect_error.hpp"

using namespace orrery::shell::startup;
using Mode = Options::Mode;

TEST(CommandLine, ChoosesWhatToRun) {
    static const struct {
        std::vector<std::string> args;
        Mode mode;
        const char* script;
        const char* text;
        std::size_t scriptArgs;
    } cases[] = {
        {{}, Mode::Prompt, "", "", 0},
        {{"tour.orr"}, Mode::Script, "tour.orr", "", 0},
        {{"tour.orr", "a", "-e"}, Mode::Script, "tour.orr", "", 2},
        {{"-e", "x = 1"}, Mode::Text, "", "x = 1", 0},
        {{"-e", "x", "more"}, Mode::Text, "", "x", 1},
        {{"--help"}, Mode::Help, "", "", 0},
        {{"-h"}, Mode::Help, "", "", 0},
        {{"--version"}, Mode::Version, "", "", 0},
        {{"-"}, Mode::Script, "-", "", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.args.empty() ? "(none)" : c.args[0]);
        const Options options = parseCommandLine(c.args);
        EXPECT_EQ(options.mode, c.mode);
        EXPECT_EQ(options.script, c.script);
        EXPECT_EQ(options.text, c.text);
        EXPECT_EQ(options.scriptArgs.size(), c.scriptArgs);
    }
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    EXPECT_MSGID_TEXT(parseCommandLine({"--bogus"}), "ORRERY:shell:unknownOption",
                      "Unknown option --bogus; run orrery --help for the options.");
    EXPECT_MSGID(parseCommandLine({"-e"}), "ORRERY:shell:missingText");
}
