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
        {{"-W", "off", "-W", "error:a:b", "s.orr", "-W"}, Mode::Script, "s.orr", "", 1},
        {{"--format", "csv", "--log-summary", "log.xml"}, Mode::LogSummary, "", "", 0},
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
    static const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"--bogus"}, "ORRERY:shell:unknownOption"},
        {{"-e"}, "ORRERY:shell:missingText"},
        {{"-W", "off", "-W"}, "ORRERY:shell:missingValue"},
        {{"--log-summary"}, "ORRERY:shell:missingValue"},
        {{"--log-summary", "log.xml", "s.orr"}, "ORRERY:shell:extraArgument"},
        {{"--log-summary", "log.xml", "--format", "xml"}, "ORRERY:shell:badSummaryFormat"},
        {{"--format", "csv", "s.orr"}, "ORRERY:shell:formatWithoutSummary"},
        {{"-W", "bogus:x"}, "ORRERY:shell:badWarningSetting"},
    };
    for (const auto& [args, identifier] : cases) {
        SCOPED_TRACE(args.back());
        EXPECT_MSGID(parseCommandLine(args), identifier);
    }
}

TEST(WarningSettings, SplitsStateFromIdentifierAtTheFirstColon) {
    // Setting, then its state and identifier.
    static const std::tuple<const char*, const char*, const char*> cases[] = {
        {"off", "off", "all"},
        {"error:my:id", "error", "my:id"},
        {"ON:backtrace", "ON", "backtrace"},
    };
    for (const auto& [written, state, identifier] : cases) {
        SCOPED_TRACE(written);
        const WarningSetting setting = parseWarningSetting(written, u"-W");
        EXPECT_EQ(setting.state, state);
        EXPECT_EQ(setting.identifier, identifier);
    }
    for (const char* malformed : {"", ":", ":my:id", "bogus:x", "query:my:id", "off:"}) {
        SCOPED_TRACE(malformed);
        EXPECT_MSGID(parseWarningSetting(malformed, u"-W"), "ORRERY:shell:badWarningSetting");
    }
}

TEST(WarningSettings, ReadsAListInOrder) {
    const auto settings = parseWarningList(" off , on:a:b,error:c:d ", u"ORRERY_WARNINGS");
    ASSERT_EQ(settings.size(), 3u);
    EXPECT_EQ(settings[0].written, "off");
    EXPECT_EQ(settings[1].identifier, "a:b");
    EXPECT_EQ(settings[2].state, "error");
    EXPECT_TRUE(parseWarningList(" ", u"ORRERY_WARNINGS").empty());
    for (const char* list : {"off,", "off,,on", ",off"}) {
        SCOPED_TRACE(list);
        EXPECT_MSGID(parseWarningList(list, u"ORRERY_WARNINGS"), "ORRERY:shell:badWarningSetting");
    }
}
