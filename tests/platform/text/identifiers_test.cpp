// Tests of the identifier character classes.
#include <orrery/text/identifiers.hpp>

#include <gtest/gtest.h>

#include <tuple>

using orrery::text::IdentifierKind;
using orrery::text::isIdentifier;

TEST(Identifiers, NamesAndMessageComponentsDifferOnlyInHyphens) {
    // text, a name?, a message component?
    const std::tuple<const char*, bool, bool> cases[] = {
        {"a", true, true},     {"Ab1_c", true, true}, {"a-b", false, true},  {"a-", false, true},
        {"", false, false},    {"1a", false, false},  {"_a", false, false},  {"-a", false, false},
        {"a b", false, false}, {"a.b", false, false}, {"a:b", false, false}, {"caf\xC3\xA9", false, false},
    };
    for (const auto& [text, name, component] : cases) {
        SCOPED_TRACE(text);
        EXPECT_EQ(isIdentifier(text, IdentifierKind::Name), name);
        EXPECT_EQ(isIdentifier(text, IdentifierKind::MessageComponent), component);
    }
}
