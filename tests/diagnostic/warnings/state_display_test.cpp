// Tests of the order in which the state display lists identifiers (the
// listing itself is shown by the warning_states script).
#include "diagnostic/warnings/state_display.hpp"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

using orrery::diagnostic::identifierPrecedes;

namespace {

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

}  // namespace
