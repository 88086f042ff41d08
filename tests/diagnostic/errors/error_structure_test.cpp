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
using orrery::testing::callBuiltin;
using orrery::testing::chars;
using orrery::testing::Frame;
using orrery::testing::stackOf;
using orrery::testing::structOf;
using value::ClassId;
using value::Dims;
using value::ValueArray;

namespace {

Frame goodFrame() { return {chars("f.orr"), chars("f"), ValueArray::scalar(3)}; }

ValueArray withoutField(ValueArray stack, std::size_t element, const char* field) {
    auto bare = ValueArray::structArray(stack.dims(), stack.fieldNames());
    for (std::size_t i = 0; i < stack.numel(); ++i) {
        for (const auto& name : stack.fieldNames()) {
            if (i != element || name != field) bare.setField(i, name, *stack.field(i, name));
        }
    }
    return bare;
}

}  // namespace

TEST(ValidateStack, AcceptsNBy1StacksOfWellTypedFrames) {
    EXPECT_NO_THROW(validateStack(ValueArray::stackStructure(0)));
    EXPECT_NO_THROW(validateStack(stackOf({goodFrame(), goodFrame()})));
    // The empty name of a script's frame is the 0-by-0 char array.
    EXPECT_NO_THROW(validateStack(stackOf({{chars(""), chars(""), ValueArray::scalar(0)}})));
}

TEST(ValidateStack, ChecksInOrder) {
    const Frame badLine{chars("f"), chars("f"), ValueArray::numericScalar(ClassId::Int32, 5)};
    const Frame badFile{ValueArray::scalar(1), chars("f"), ValueArray::scalar(1)};
    struct Case {
        const char* name;
        ValueArray stack;
        const char* identifier;
    };
    const Case cases[] = {
        {"not a structure", ValueArray::cell(Dims{1, 1}), "ORRERY:error:badStackStruct"},
        {"three dimensions", ValueArray::structArray(Dims{1, 1, 2}, {"file", "name", "line"}), "ORRERY:error:badStack"},
        {"1-by-0", ValueArray::structArray(Dims{1, 0}, {"file", "name", "line"}), "ORRERY:error:badStack"},
        {"2-by-2", ValueArray::structArray(Dims{2, 2}, {"file", "name", "line"}), "ORRERY:error:badStack"},
        {"shape before fields", ValueArray::structArray(Dims{1, 2}), "ORRERY:error:badStack"},
        {"no file field", ValueArray::structArray(Dims{0, 1}, {"name", "line"}), "ORRERY:error:badStackFile"},
        {"no line field", ValueArray::structArray(Dims{0, 1}, {"file", "name"}), "ORRERY:error:badStackFile"},
        {"file not char", stackOf({badFile}), "ORRERY:error:badStackFileString"},
        {"name not char", stackOf({{chars("f"), ValueArray::cell(Dims{0, 0}), ValueArray::scalar(1)}}),
         "ORRERY:error:badStackName"},
        {"line int32", stackOf({badLine}), "ORRERY:error:badStackLine"},
        {"line vector", stackOf({{chars("f"), chars("f"), ValueArray::doubles(Dims{1, 2}, {1, 2})}}),
         "ORRERY:error:badStackLine"},
        {"line unset", withoutField(stackOf({goodFrame()}), 0, "line"), "ORRERY:error:badStackLine"},
        {"file before name and line", stackOf({{ValueArray(), ValueArray(), ValueArray()}}),
         "ORRERY:error:badStackFileString"},
        {"first failing element wins", stackOf({goodFrame(), badLine, badFile}), "ORRERY:error:badStackLine"},
        {"later element checked", stackOf({goodFrame(), goodFrame(), badFile}), "ORRERY:error:badStackFileString"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_MSGID(validateStack(c.stack), c.identifier);
    }
}

TEST(ReadErrorStructure, ReadsEachOptionalField) {
    const auto none = readErrorStructure(ValueArray::structArray(Dims{1, 1}, {"stack"}));
    EXPECT_EQ(none.identifier, "");
    EXPECT_EQ(none.message, u"");
    EXPECT_FALSE(none.stack.has_value());  // an unset field counts as absent
    const auto stack = stackOf({goodFrame()});
    const auto parts = readErrorStructure(structOf(
        {{"message", ValueArray::string(u"m\u00e9")}, {"identifier", ValueArray::string(u"a:b")}, {"stack", stack}}));
    EXPECT_EQ(parts.identifier, "a:b");
    EXPECT_EQ(parts.message, u"m\u00e9");
    ASSERT_TRUE(parts.stack.has_value());
    EXPECT_TRUE(parts.stack->sharesDataWith(stack));
    // The empty text '' is the 0-by-0 char array.
    EXPECT_EQ(readErrorStructure(structOf({{"identifier", chars("")}, {"message", chars("")}})).identifier, "");
}

TEST(ReadErrorStructure, ChecksInOrder) {
    const auto badStack = ValueArray::scalar(1);
    struct Case {
        const char* name;
        ValueArray structure;
        const char* identifier;
    };
    const Case cases[] = {
        {"not 1-by-1", ValueArray::structArray(Dims{2, 1}, {"identifier"}), "ORRERY:error:nonScalarInput"},
        {"empty", ValueArray::structArray(Dims{0, 0}), "ORRERY:error:nonScalarInput"},
        {"identifier number", structOf({{"identifier", ValueArray::scalar(1)}}), "ORRERY:error:badIdentifier"},
        {"identifier char matrix", structOf({{"identifier", ValueArray::charArray(Dims{2, 2}, u"a:bc")}}),
         "ORRERY:error:badIdentifier"},
        {"identifier missing string", structOf({{"identifier", ValueArray::missingString()}}),
         "ORRERY:error:badIdentifier"},
        {"identifier not ASCII", structOf({{"identifier", ValueArray::chars(u"a:\u00e9")}}),
         "ORRERY:error:badIdentifier"},
        {"identifier malformed", structOf({{"identifier", chars("a b:c")}}), "ORRERY:error:badIdentifier"},
        {"identifier before message", structOf({{"message", ValueArray::scalar(1)}, {"identifier", chars("x")}}),
         "ORRERY:error:badIdentifier"},
        {"message number", structOf({{"message", ValueArray::scalar(1)}}), "ORRERY:error:badMessage"},
        {"message before stack", structOf({{"stack", badStack}, {"message", ValueArray::cell(Dims{1, 1})}}),
         "ORRERY:error:badMessage"},
        {"stack", structOf({{"stack", badStack}}), "ORRERY:error:badStackStruct"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_MSGID(readErrorStructure(c.structure), c.identifier);
    }
}

TEST(RethrowBuiltin, RaisesTheStructuresError) {
    EXPECT_MSGID(callBuiltin(&bnStructRethrowFcn, 0, {chars("a:b")}), "ORRERY:rethrow:invalidInputType");
    EXPECT_QEXCEPTION(callBuiltin(&bnStructRethrowFcn, 0, {structOf({})}), "", "");
    const auto stack = stackOf({goodFrame()});
    const auto error = orrery::testing::userErrorOf([&] {
        callBuiltin(&bnStructRethrowFcn, 0,
                    {structOf({{"identifier", chars("a:b")}, {"message", chars("m")}, {"stack", stack}})});
    });
    EXPECT_EQ(error.identifier(), "a:b");
    EXPECT_TRUE(error.stack().sharesDataWith(stack));
    EXPECT_EQ(error.functionName(), "");
}

TEST(RethrowBuiltin, WithoutStackTakesTheCallersFramesSkippingOne) {
    const interp::FrameGuard outer({u"main.orr", u"main", 2});
    const interp::FrameGuard inner({u"main.orr", u"helper", 9});
    const auto error = orrery::testing::userErrorOf([] { callBuiltin(&bnStructRethrowFcn, 0, {structOf({})}); });
    ASSERT_EQ(error.stack().numel(), 1u);
    EXPECT_EQ(error.stack().field(0, "name")->text(), u"main");
}
