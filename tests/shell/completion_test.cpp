// Tab completion at the prompt: which names complete a word, and when the
// cursor stands inside a quoted text (where file names complete instead).
#include "shell/prompt/completion.hpp"
#include "shell/eval/interpreter.hpp"
#include "shell/lang/parser.hpp"

#include <orrery/interp/function_table.hpp>
#include <orrery/value/value_array.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace orrery;
using shell::prompt::completionsOf;
using shell::prompt::insideQuotes;

TEST(Completion, OffersVariablesFunctionsCommandsBuiltinsAndKeywordsThatStartTheWord) {
    interp::registerFunction("complProbe",
                             [](std::int32_t, value::ValueArrayPtr*, std::int32_t, const value::ValueArray* const*) {});
    shell::eval::Interpreter interpreter;
    interpreter.run(shell::lang::parse("complVariable = 1;\nfunction complFunction\nend\n", u"t"), u"t", u"");
    using Names = std::vector<std::string>;
    EXPECT_EQ(completionsOf(interpreter, "compl"), (Names{"complFunction", "complProbe", "complVariable"}));
    EXPECT_EQ(completionsOf(interpreter, "whi"), (Names{"while"}));
    EXPECT_EQ(completionsOf(interpreter, "cle"), (Names{"clear"}));
    EXPECT_TRUE(completionsOf(interpreter, "noSuchStart").empty());
}

TEST(Completion, TellsAQuotedTextFromATranspose) {
    const std::pair<const char*, bool> cases[] = {
        {"disp('ab", true}, {"x = \"ab", true}, {"x'", false},     {"x = a' + 'b", true},   {"'it''s", true},
        {"'done' ", false}, {"[a' 'b", true},   {"f(x)' ", false}, {"s = \"say 'hi", true}, {"", false},
    };
    for (const auto& [line, inside] : cases) {
        SCOPED_TRACE(line);
        EXPECT_EQ(insideQuotes(line, std::string(line).size()), inside);
    }
}
