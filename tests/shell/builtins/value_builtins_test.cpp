// Tests of the value built-ins (size, isequal) and their registration.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>

#include <cmath>
#include <memory>

using namespace builtin_test;

TEST(SizeBuiltin, SpreadsSizesOverOutputs) {
    const ValueArray x = ValueArray::zeros(ClassId::Double, Dims{2, 3, 4});
    EXPECT_EQ(numbers(call1("size", {x, num(3)})), std::vector<double>{4});
    EXPECT_EQ(numbers(call1("size", {x, num(7)})), std::vector<double>{1});
    const auto two = call("size", 2, {x});
    EXPECT_EQ(numbers(two[1]), std::vector<double>{12}) << "the last output takes the remaining sizes";
    const auto four = call("size", 4, {x});
    EXPECT_EQ(numbers(four[3]), std::vector<double>{1});
    EXPECT_MSGID(call1("size", {x, num(0)}), "ORRERY:host:badDimension");
    EXPECT_MSGID(call("size", 2, {x, num(1)}), "ORRERY:tooManyOutputs");
}

TEST(IsequalBuiltin, ComparesAcrossClassesAndContainers) {
    const ValueArray s1 = call1("struct", {txt(u"a"), num(1), txt(u"b"), txt(u"x")});
    const ValueArray s2 = call1("struct", {txt(u"b"), txt(u"x"), txt(u"a"), num(1)});
    const ValueArray s3 = call1("struct", {txt(u"b"), txt(u"x"), txt(u"a"), num(2)});
    const double nan = std::nan("");
    const std::tuple<const char*, ValueArray, ValueArray, bool> cases[] = {
        {"double and int8", num(1), ValueArray::numericScalar(ClassId::Int8, 1), true},
        {"char and its codes", txt(u"a"), num(97), true},
        {"char row and string", txt(u"abc"), str(u"abc"), true},
        {"string and other text", str(u"abc"), txt(u"abd"), false},
        {"NaN equals nothing", row({1, nan}), row({1, nan}), false},
        {"row and column", row({0, 0}), ValueArray::doubles(Dims{2, 1}, {0, 0}), false},
        {"cells element by element", cellRow({num(1), txt(u"a")}), cellRow({num(1), txt(u"a")}), true},
        {"cell and number", cellRow({num(1)}), num(1), false},
        {"struct fields in any order", s1, s2, true},
        {"struct field values differ", s1, s3, false},
        {"missing strings", ValueArray::missingString(), ValueArray::missingString(), false},
    };
    for (const auto& [name, a, b, equal] : cases) {
        SCOPED_TRACE(name);
        EXPECT_EQ(truth(call1("isequal", {a, b})), equal);
    }
    EXPECT_TRUE(truth(call1("isequal", {num(2), num(2), num(2)})));
    EXPECT_FALSE(truth(call1("isequal", {num(2), num(2), num(3)})));
    EXPECT_MSGID(call1("isequal", {num(2)}), "ORRERY:notEnoughInputs");
}

namespace {

struct Thing : orrery::ocos::COSObject {
    std::shared_ptr<COSObject> clone() const override { return std::make_shared<Thing>(); }
};

// A class isequal that calls every pair of its objects equal.
struct AlwaysEqual : orrery::ocos::COSMethodInfo {
    AlwaysEqual()
        : COSMethodInfo("isequal", orrery::ocos::COSMethodSignature({"builtinstest.Defining", "builtinstest.Defining"},
                                                                    {"logical scalar"})) {}
    void invoke(std::int32_t, orrery::value::ValueArrayPtr* plhs, std::int32_t,
                const ValueArray* const*) const override {
        plhs[0] = orrery::value::makeValue(ValueArray::logicalScalar(true));
    }
};

ValueArray thingOf(const std::shared_ptr<const orrery::ocos::COSClassInfo>& info) {
    ValueArray v = ValueArray::objectArray(info, Dims{1, 1});
    v.setObjectAt(0, std::make_shared<Thing>());
    return v;
}

}  // namespace

// Objects without an isequal of their own compare by value (the object_calls script).
TEST(IsequalBuiltin, AClassesOwnIsequalDecidesAtTheTopAndInsideContainers) {
    const auto defining = std::make_shared<orrery::ocos::COSClassInfo>("builtinstest.Defining");
    defining->addMethod(std::make_shared<AlwaysEqual>());
    EXPECT_TRUE(truth(call1("isequal", {thingOf(defining), thingOf(defining)})));
    EXPECT_TRUE(truth(call1("isequal", {cellRow({thingOf(defining)}), cellRow({thingOf(defining)})})));
    EXPECT_FALSE(truth(call1("isequal", {cellRow({thingOf(defining)}), cellRow({num(1)})})));
}

// Registration leaves the platform's own isscalar in place.
TEST(HostBuiltins, RegistrationKeepsThePlatformsIsscalar) {
    static int platformCalls;
    platformCalls = 0;
    orrery::interp::registerFunction(
        "isscalar", [](std::int32_t, orrery::value::ValueArrayPtr* plhs, std::int32_t, const ValueArray* const* prhs) {
            ++platformCalls;
            plhs[0] = orrery::value::makeValue(ValueArray::logicalScalar(prhs[0]->isScalar()));
        });
    orrery::shell::registerHostBuiltins();
    EXPECT_TRUE(truth(call1("isscalar", {num(1)})));
    EXPECT_EQ(platformCalls, 1);
}
