// The standard argument-count errors of every error built-in, checked before
// anything else.
#include "diagnostic/errors/error_builtins.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

using namespace orrery;
using orrery::testing::callBuiltin;
using orrery::testing::chars;
using value::ValueArray;

TEST(ArgumentCounts, AreTheHostsStandardErrors) {
    const auto text = chars("a:b");
    const auto structure = orrery::testing::structOf({});
    struct Case {
        const char* name;
        value::BuiltinFunction builtin;
        std::int32_t nlhs;
        std::vector<ValueArray> inputs;
        const char* identifier;
    };
    const Case cases[] = {
        {"error without input", &bnFullErrorFcn, 0, {}, "ORRERY:notEnoughInputs"},
        {"error with an output", &bnFullErrorFcn, 1, {text}, "ORRERY:tooManyOutputs"},
        {"assert without input", &bnFullAssertFcn, 0, {}, "ORRERY:notEnoughInputs"},
        {"assert with an output", &bnFullAssertFcn, 1, {ValueArray::logicalScalar(true)}, "ORRERY:tooManyOutputs"},
        {"rethrow without input", &bnStructRethrowFcn, 0, {}, "ORRERY:notEnoughInputs"},
        {"rethrow with two", &bnStructRethrowFcn, 0, {structure, structure}, "ORRERY:tooManyInputs"},
        {"rethrow with an output", &bnStructRethrowFcn, 1, {structure}, "ORRERY:tooManyOutputs"},
        {"lasterr with three outputs", &bnLastErrMsg, 3, {}, "ORRERY:tooManyOutputs"},
        // Counted before the flag is looked at.
        {"lasterr with three inputs", &bnLastErrMsg, 0, {chars("-hotlinks"), text, text}, "ORRERY:tooManyInputs"},
        {"lasterror with two outputs", &bnLastErrorFcn, 2, {}, "ORRERY:tooManyOutputs"},
        {"lasterror with two inputs", &bnLastErrorFcn, 0, {chars("reset"), chars("reset")}, "ORRERY:tooManyInputs"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const orrery::testing::InputList inputs(c.inputs);
        std::vector<value::ValueArrayPtr> slots(3);
        EXPECT_MSGID(c.builtin(c.nlhs, slots.data(), inputs.count(), inputs.data()), c.identifier);
    }
}
