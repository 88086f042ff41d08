// Tests of the state display: the identifier order and the listing of "all".
#include "tests/diagnostic/warnings/warning_fixture.hpp"

#include "diagnostic/warnings/state_display.hpp"

using namespace orrery;
using orrery::diagnostic::identifierPrecedes;
using orrery::testing::chars;
using warning::WarningState;

namespace {

using StateDisplay = orrery::testing::WarningBuiltinTest;

TEST(IdentifierOrder, SortsComponentByComponent) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"a:b", "a-b", true},      // ":" is lowest
        {"a-b", "a:b", false},     //
        {"a:z", "ab", true},       // the component ends before the longer one
        {"a:b", "a_b", true},      //
        {"A:x", "a:x", true},      // by byte value, upper case first
        {"a:b", "a:b", false},     // equal texts are not ordered
        {"a:b", "a:b:c", true},    // a prefix first
        {"a:b:c", "a:b", false},   //
        {"x\xc3:a", "x:a", true},  // bytes above 127 count by their negative value
        {"x\xc3:a", "xA:a", true},
    };
    for (const auto& [a, b, before] : cases) {
        SCOPED_TRACE(std::string(a) + " < " + b);
        EXPECT_EQ(identifierPrecedes(a, b), before);
    }
}

TEST_F(StateDisplay, AllWithoutExceptionsIsOneLine) {
    warning::utSetWarningStatus(context, "ORRERY:same:state", WarningState::On);
    warningCall(0, {chars("query")});
    EXPECT_EQ(takeOutput(), "All warnings have the state 'on'.\n");
    warningCall(0, {chars("off"), chars("all")});
    warningCall(0, {chars("query"), chars("ALL")});
    EXPECT_EQ(takeOutput(),
              "The default warning state is 'off'. Warnings not set to the default are\n"
              "\n  State  Warning Identifier\n\n"
              "     on  ORRERY:same:state\n\n");
}

TEST_F(StateDisplay, AllListsTheExceptionsInIdentifierOrder) {
    for (const char* identifier : {"ORRERY:z:last", "ab:c", "a-b:c", "a:b:c", "ORRERY:a:first"})
        warning::utSetWarningStatus(context, identifier, WarningState::Off);
    warning::utSetWarningStatus(context, "ORRERY:m:mid", WarningState::Error);
    warningCall(0, {});
    EXPECT_EQ(takeOutput(),
              "The default warning state is 'on'. Warnings not set to the default are\n"
              "\n  State  Warning Identifier\n\n"
              "    off  ORRERY:a:first\n"
              "  error  ORRERY:m:mid\n"
              "    off  ORRERY:z:last\n"
              "    off  a:b:c\n"
              "    off  a-b:c\n"
              "    off  ab:c\n\n");
    EXPECT_EQ(takeError(), "");
}

}  // namespace
