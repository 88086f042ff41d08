// Tests of error structures, stack validation and rethrow.
#include "diagnostic/errors/error_structure.hpp"
#include "diagnostic/errors/error_builtins.hpp"
#include "diagnostic/errors/stack_validation.hpp"

#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/interp/call_stack.hpp>

using namespace orrery;
using diagnostic::readErrorStructure;
using diagnostic::validateStack;
using namespace orrery::testing;

namespace {

Frame goodFrame() { return {chars("f.orr"), chars("f"), ValueArray::scalar(3)}; }

// A named input and the identifier of the failure it must raise.
using Case = std::tuple<const char*, ValueArray, const char*>;

}  // namespace

TEST(ValidateStack, AcceptsNBy1StacksOfWellTypedFrames) {
    EXPECT_NO_THROW(validateStack(ValueArray::stackStructure(0)));
    EXPECT_NO_THROW(validateStack(stackOf({goodFrame(), goodFrame()})));
    // The empty name of a script's frame is the 0-by-0 char array.
    EXPECT_NO_THROW(validateStack(stackOf({{chars(""), chars(""), ValueArray::scalar(0)}})));
}

TEST(ValidateStack, ChecksInOrder) {
    const auto f = chars("f");
    const auto one = ValueArray::scalar(1);
    const Frame badLine{f, f, ValueArray::numericScalar(ClassId::Int32, 5)};
    const Frame badFile{one, f, one};
    auto lineUnset = ValueArray::stackStructure(1);
    lineUnset.setField(0, "file", f);
    lineUnset.setField(0, "name", f);
    const Case cases[] = {
        {"not a structure", ValueArray::cell(Dims{1, 1}), "ORRERY:error:badStackStruct"},
        {"three dimensions", ValueArray::structArray(Dims{1, 1, 2}, {"file", "name", "line"}), "ORRERY:error:badStack"},
        {"1-by-0", ValueArray::structArray(Dims{1, 0}, {"file", "name", "line"}), "ORRERY:error:badStack"},
        {"shape before fields", ValueArray::structArray(Dims{1, 2}), "ORRERY:error:badStack"},
        {"no file field", ValueArray::structArray(Dims{0, 1}, {"name", "line"}), "ORRERY:error:badStackFile"},
        {"file not char", stackOf({badFile}), "ORRERY:error:badStackFileString"},
        {"name not char", stackOf({{f, ValueArray::cell(Dims{0, 0}), one}}), "ORRERY:error:badStackName"},
        {"line int32", stackOf({badLine}), "ORRERY:error:badStackLine"},
        {"line vector", stackOf({{f, f, ValueArray::doubles(Dims{1, 2}, {1, 2})}}), "ORRERY:error:badStackLine"},
        {"line unset", lineUnset, "ORRERY:error:badStackLine"},
        {"file before name and line", stackOf({{ValueArray(), ValueArray(), ValueArray()}}),
         "ORRERY:error:badStackFileString"},
        {"first failing element wins", stackOf({goodFrame(), badLine, badFile}), "ORRERY:error:badStackLine"},
        {"later element checked", stackOf({goodFrame(), goodFrame(), badFile}), "ORRERY:error:badStackFileString"},
    };
    for (const auto& [name, input, identifier] : cases) {
        SCOPED_TRACE(name);
        EXPECT_MSGID(validateStack(input), identifier);
    }
}

TEST(ReadErrorStructure, ReadsEachOptionalField) {
    const auto none = readErrorStructure(ValueArray::structArray(Dims{1, 1}, {"stack"}));
    EXPECT_EQ(none.identifier, "");
    EXPECT_EQ(none.message, u"");
    EXPECT_FALSE(none.stack.has_value());  // an unset field counts as absent
    // The empty text '' is the 0-by-0 char array.
    EXPECT_EQ(readErrorStructure(structOf({{"identifier", chars("")}, {"message", chars("")}})).identifier, "");
}

TEST(ReadErrorStructure, ChecksInOrder) {
    const auto badStack = ValueArray::scalar(1);
    const auto withIdentifier = [](ValueArray identifier) { return structOf({{"identifier", std::move(identifier)}}); };
    const Case cases[] = {
        {"not 1-by-1", ValueArray::structArray(Dims{2, 1}, {"identifier"}), "ORRERY:error:nonScalarInput"},
        {"empty", ValueArray::structArray(Dims{0, 0}), "ORRERY:error:nonScalarInput"},
        {"identifier char matrix", withIdentifier(ValueArray::charArray(Dims{2, 2}, u"a:bc")),
         "ORRERY:error:badIdentifier"},
        {"identifier not ASCII", withIdentifier(ValueArray::chars(u"a:\u00e9")), "ORRERY:error:badIdentifier"},
        {"identifier before message", structOf({{"message", ValueArray::scalar(1)}, {"identifier", chars("x")}}),
         "ORRERY:error:badIdentifier"},
        {"message number", structOf({{"message", ValueArray::scalar(1)}}), "ORRERY:error:badMessage"},
        {"message before stack", structOf({{"stack", badStack}, {"message", ValueArray::cell(Dims{1, 1})}}),
         "ORRERY:error:badMessage"},
        {"stack", structOf({{"stack", badStack}}), "ORRERY:error:badStackStruct"},
    };
    for (const auto& [name, input, identifier] : cases) {
        SCOPED_TRACE(name);
        EXPECT_MSGID(readErrorStructure(input), identifier);
    }
}

TEST(RethrowBuiltin, RaisesTheStructuresErrorUnderNoName) {
    const auto stack = stackOf({goodFrame()});
    const auto error = orrery::testing::userErrorOf([&] {
        callBuiltin(&bnStructRethrowFcn, 0, {structOf({{"stack", stack}})});
    });
    EXPECT_EQ(error.identifier(), "");
    EXPECT_EQ(error.message(), u"");
    EXPECT_EQ(error.stack().field(0, "line")->realAt(0), 3);
    EXPECT_EQ(error.functionName(), "");
}

TEST(RethrowBuiltin, WithoutStackTakesTheCallersFramesSkippingOne) {
    const interp::FrameGuard outer({u"main.orr", u"main", 2});
    const interp::FrameGuard inner({u"main.orr", u"helper", 9});
    const auto error = orrery::testing::userErrorOf([] { callBuiltin(&bnStructRethrowFcn, 0, {structOf({})}); });
    ASSERT_EQ(error.stack().numel(), 1u);
    EXPECT_EQ(error.stack().field(0, "name")->text(), u"main");
}
