// Tests of the function table: calls by name, the platform's own functions, and
// dispatch to an object's own method.
#include "tests/support/expect_error.hpp"

#include <orrery/interp/function_table.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>

#include <memory>
#include <vector>

using namespace orrery::value;
using orrery::interp::callFunction;
using orrery::interp::isFunction;
using orrery::interp::registerFunction;

namespace {

// A method that answers with a char row naming itself and the number of inputs.
class OwnMethod : public orrery::ocos::COSMethodInfo {
public:
    OwnMethod() : COSMethodInfo("isscalar") {}
    void invoke(std::int32_t, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const*) const override {
        plhs[0] = makeValue(ValueArray::chars(nrhs == 1 ? u"own, one input" : u"own, more inputs"));
    }
};

// A class that has its own isscalar; other names are not its methods.
class OwnClass : public orrery::ocos::COSClassInfo {
public:
    OwnClass() : COSClassInfo("test.Own") {}
    std::shared_ptr<const orrery::ocos::COSMethodInfo> findMethod(std::string_view name) const override {
        return name == "isscalar" ? method_ : nullptr;
    }

private:
    std::shared_ptr<const orrery::ocos::COSMethodInfo> method_ = std::make_shared<OwnMethod>();
};

ValueArray call(std::string_view name, const std::vector<ValueArray>& args, std::int32_t nlhs = 1) {
    std::vector<const ValueArray*> inputs;
    for (const auto& arg : args) inputs.push_back(&arg);
    ValueArrayPtr out[2];
    callFunction(name, nlhs, out, static_cast<std::int32_t>(inputs.size()), inputs.data());
    if (!out[0]) throw std::logic_error("no output");
    return *out[0];
}

ValueArray plainObjects(Dims dims) {
    return ValueArray::objectArray(std::make_shared<orrery::ocos::COSClassInfo>("test.Plain"), std::move(dims));
}

}  // namespace

TEST(FunctionTable, UnknownNameRaisesUndefinedFunction) {
    EXPECT_FALSE(isFunction("noSuchFunction"));
    EXPECT_MSGID_TEXT(call("noSuchFunction", {}), "ORRERY:undefinedFunction",
                      "'noSuchFunction' is not a defined function or variable.");
    // An object without that method does not make the name known.
    EXPECT_MSGID(call("noSuchFunction", {plainObjects(Dims{1, 1})}), "ORRERY:undefinedFunction");
}

TEST(FunctionTable, IsscalarCountsElements) {
    ASSERT_TRUE(isFunction("isscalar"));
    const struct {
        const char* what;
        ValueArray value;
        bool expected;
    } cases[] = {
        {"double scalar", ValueArray::scalar(3), true},
        {"0x0", ValueArray(), false},
        {"1x0 char", ValueArray::charArray(Dims{1, 0}, u""), false},
        {"row", ValueArray::doubles(Dims{1, 3}, {1, 2, 3}), false},
        {"1x1x1 cell", ValueArray::cell(Dims{1, 1, 1}), true},
        {"string", ValueArray::string(u"text"), true},
        {"2x2 objects", plainObjects(Dims{2, 2}), false},
        {"1x1 object", plainObjects(Dims{1, 1}), true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const ValueArray result = call("isscalar", {c.value}, 0);
        ASSERT_TRUE(result.is(ClassId::Logical));
        ASSERT_TRUE(result.isScalar());
        EXPECT_EQ(result.logicalAt(0), c.expected);
    }
}

TEST(FunctionTable, IsscalarChecksArgumentCounts) {
    const ValueArray x = ValueArray::scalar(1);
    EXPECT_MSGID(call("isscalar", {x}, 2), "ORRERY:tooManyOutputs");
    EXPECT_MSGID(call("isscalar", {}), "ORRERY:notEnoughInputs");
    EXPECT_MSGID(call("isscalar", {x, x}), "ORRERY:tooManyInputs");
}

TEST(FunctionTable, SprintfIsRegistered) {
    EXPECT_EQ(call("sprintf", {ValueArray::chars(u"%d!"), ValueArray::scalar(3)}).text(), u"3!");
    EXPECT_MSGID(call("sprintf", {}), "ORRERY:notEnoughInputs");
}

TEST(FunctionTable, AnObjectsOwnMethodWinsWhereverTheObjectStands) {
    const ValueArray own = ValueArray::objectArray(std::make_shared<OwnClass>(), Dims{2, 2});
    EXPECT_EQ(call("isscalar", {own}).text(), u"own, one input");
    // The built-in would refuse two inputs; the method is asked instead. A plain
    // object before it has no such method and is passed over.
    EXPECT_EQ(call("isscalar", {plainObjects(Dims{1, 1}), own}).text(), u"own, more inputs");
    EXPECT_EQ(call("isscalar", {ValueArray::scalar(1), own}).text(), u"own, more inputs");
    // Other names still reach the table, whose sprintf refuses objects.
    EXPECT_MSGID(call("sprintf", {ValueArray::chars(u"x"), own}), "ORRERY:sprintf:unsupportedArgument");
}

TEST(FunctionTable, RegistersReplacesAndRemoves) {
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
    EXPECT_MSGID(call("tableTestAnswer", {}), "ORRERY:undefinedFunction");
}
