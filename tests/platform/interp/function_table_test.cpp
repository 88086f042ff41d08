// Tests of the function table: calls by name, the platform's own functions, and
// dispatch to an object's own method.
#include "tests/platform/ocos/gadget_class.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/interp/function_table.hpp>

#include <vector>

using namespace orrery::value;
using namespace orrery::interp;

static ValueArray call(std::string_view name, const std::vector<ValueArray>& args, std::int32_t nlhs = 1) {
    std::vector<const ValueArray*> inputs;
    for (const auto& arg : args) inputs.push_back(&arg);
    ValueArrayPtr out[2];
    callFunction(name, nlhs, out, static_cast<std::int32_t>(inputs.size()), inputs.data());
    if (!out[0]) throw std::logic_error("no output");
    return *out[0];
}

static ValueArray plainObjects(Dims dims) {
    return ValueArray::objectArray(std::make_shared<orrery::ocos::COSClassInfo>("test.Plain"), std::move(dims));
}

TEST(FunctionTable, IsscalarCountsElements) {
    const std::pair<ValueArray, bool> cases[] = {
        {ValueArray::scalar(3), true},           {ValueArray::charArray(Dims{1, 0}, u""), false},
        {ValueArray::cell(Dims{1, 1, 1}), true}, {ValueArray::string(u"text"), true},
        {plainObjects(Dims{2, 2}), false},       {plainObjects(Dims{1, 1}), true},
    };
    for (const auto& [value, expected] : cases) {
        SCOPED_TRACE(value.className() + " " + value.dims().text());
        const ValueArray result = call("isscalar", {value}, 0);
        ASSERT_TRUE(result.is(ClassId::Logical) && result.isScalar());
        EXPECT_EQ(result.logicalAt(0), expected);
    }
    EXPECT_MSGID(call("isscalar", {ValueArray()}, 2), "ORRERY:tooManyOutputs");
    EXPECT_MSGID(call("isscalar", {}), "ORRERY:notEnoughInputs");
    EXPECT_MSGID(call("isscalar", {ValueArray(), ValueArray()}), "ORRERY:tooManyInputs");
}

TEST(FunctionTable, TheFirstObjectsClassMethodWinsWithItsSignatureChecked) {
    // A class with its own isscalar taking one object and answering 42.
    const auto ownClass = std::make_shared<orrery::ocos::COSClassInfo>("test.Own");
    ownClass->addMethod(ocos_test::lambdaMethod(
        "isscalar", {{"test.Own"}, {"double"}},
        [](auto, ValueArrayPtr* plhs, auto, auto) { plhs[0] = makeValue(ValueArray::scalar(42)); }));
    const ValueArray own = ValueArray::objectArray(ownClass, Dims{2, 2});
    EXPECT_EQ(call("isscalar", {own}).realAt(0), 42);
    // The method decides even where the host's function would accept the call.
    EXPECT_MSGID(call("isscalar", {ValueArray::scalar(1), own}), "ORRERY:tooManyInputs");
    EXPECT_MSGID(call("isscalar", {own}, 2), "ORRERY:tooManyOutputs");
    // The first object's class decides: a plain object first leaves the host's function.
    EXPECT_MSGID(call("isscalar", {plainObjects(Dims{1, 1}), own}), "ORRERY:tooManyInputs");
    EXPECT_TRUE(call("isscalar", {plainObjects(Dims{1, 1})}).logicalAt(0));
    // Other names still reach the table, whose sprintf refuses objects.
    EXPECT_MSGID(call("sprintf", {ValueArray::chars(u"x"), own}), "ORRERY:sprintf:unsupportedArgument");
}

TEST(FunctionTable, RegistersReplacesAndRemovesNames) {
    const auto answer = [](double value) {
        return [value](std::int32_t, ValueArrayPtr* plhs, std::int32_t, const ValueArray* const*) {
            plhs[0] = makeValue(ValueArray::scalar(value));
        };
    };
    registerFunction("tableTestAnswer", answer(1));
    EXPECT_TRUE(isFunction("tableTestAnswer"));
    EXPECT_EQ(call("tableTestAnswer", {}).realAt(0), 1);
    registerFunction("tableTestAnswer", answer(2));
    EXPECT_EQ(call("tableTestAnswer", {}).realAt(0), 2);
    registerFunction("tableTestAnswer", nullptr);
    EXPECT_FALSE(isFunction("tableTestAnswer"));
    EXPECT_MSGID_TEXT(call("tableTestAnswer", {}), "ORRERY:undefinedFunction",
                      "'tableTestAnswer' is not a defined function or variable.");
    // An object without a method of that name does not make the name known.
    EXPECT_MSGID(call("tableTestAnswer", {plainObjects(Dims{1, 1})}), "ORRERY:undefinedFunction");
}
