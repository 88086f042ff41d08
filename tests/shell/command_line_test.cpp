// The orrery command's arguments.
#include "shell/startup/command_line.hpp"

#include "tests/support/expect_error.hpp"

using namespace orrery::shell::startup;
using Mode = Options::Mode;

TEST(CommandLine, ChoosesWhatToRun) {
    // Arguments, then the mode, script, text and number of script arguments.
    static const std::tuple<std::vector<std::string>, Mode, const char*, const char*, std::size_t> cases[] = {
        {{}, Mode::Prompt, "", "", 0},
        {{"tour.orr", "a", "-e"}, Mode::Script, "tour.orr", "", 2},
        {{"-e", "x", "more"}, Mode::Text, "", "x", 1},
        {{"-h"}, Mode::Help, "", "", 0},
        {{"-"}, Mode::Script, "-", "", 0},
    };
    for (const auto& [args, mode, script, text, scriptArgs] : cases) {
        SCOPED_TRACE(args.empty() ? "(none)" : args[0]);
        const Options options = parseCommandLine(args);
        EXPECT_EQ(options.mode, mode);
        EXPECT_EQ(options.script, script);
        EXPECT_EQ(options.text, text);
        EXPECT_EQ(options.scriptArgs.size(), scriptArgs);
    }
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    EXPECT_MSGID(parseCommandLine({"--bogus"}), "ORRERY:shell:unknownOption");
    EXPECT_MSGID(parseCommandLine({"-e"}), "ORRERY:shell:missingText");
}
