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
        {ValueArray::scalar(3), true}, {ValueArray::charArray(Dims{1, 0}, u""), false},
        {ValueArray::cell(Dims{1, 1, 1}), true}, {ValueArray::string(u"text"), true},
        {plainObjects(Dims{2, 2}), false},     {plainObjects(Dims{1, 1}), true},
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

TEST(FunctionTable, AnObjectsOwnMethodWinsWhereverTheObjectStands) {
    // A class with its own isscalar, answering with the number of inputs.
    const auto ownClass = std::make_shared<orrery::ocos::COSClassInfo>("test.Own");
    ownClass->addMethod(ocos_test::lambdaMethod("isscalar", {}, [](auto, ValueArrayPtr* plhs, std::int32_t nrhs, auto) {
        plhs[0] = makeValue(ValueArray::scalar(nrhs));
    }));
    const ValueArray own = ValueArray::objectArray(ownClass, Dims{2, 2});
    EXPECT_EQ(call("isscalar", {own}).realAt(0), 1);
    // The built-in would refuse two inputs; the method is asked instead. A plain
    // object before it has no such method and is passed over.
    EXPECT_EQ(call("isscalar", {plainObjects(Dims{1, 1}), own}).realAt(0), 2);
    EXPECT_EQ(call("isscalar", {ValueArray::scalar(1), own}).realAt(0), 2);
    // Other names still reach the table, whose sprintf refuses objects.
    EXPECT_MSGID(call("sprintf", {ValueArray::chars(u"x"), own}), "ORRERY:sprintf:unsupportedArgument");
    EXPECT_EQ(call("sprintf", {ValueArray::chars(u"%d!"), ValueArray::scalar(3)}).text(), u"3!");
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
