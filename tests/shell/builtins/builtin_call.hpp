// The host built-ins registered once for the tests of this folder, and short
// names for their inputs.
#pragma once

#include "shell/builtins/host_builtins.hpp"
#include "tests/support/builtin_call.hpp"

namespace builtin_test {

using namespace orrery::testing;

struct HostBuiltins : ::testing::Environment {
    void SetUp() override { orrery::shell::registerHostBuiltins(); }
};
inline ::testing::Environment* const hostBuiltins = ::testing::AddGlobalTestEnvironment(new HostBuiltins);

inline ValueArray num(double x) { return ValueArray::scalar(x); }
inline ValueArray txt(std::u16string_view text) { return ValueArray::chars(text); }
inline ValueArray str(std::u16string_view text) { return ValueArray::string(text); }
inline bool truth(const ValueArray& v) { return v.is(ClassId::Logical) && v.isScalar() && v.logicalAt(0); }

}  // namespace builtin_test
