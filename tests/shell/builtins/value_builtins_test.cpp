// Tests of isequal on what a script cannot make, and of the registration.
#include "tests/shell/builtins/builtin_call.hpp"
#include "tests/support/expect_error.hpp"

#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/method_info.hpp>

#include <memory>

using namespace builtin_test;

// Missing strings, which a script cannot make, equal nothing (size, isequal and
// strcmp on other values are shown by the host_text_dates script).
TEST(IsequalBuiltin, MissingStringsEqualNothing) {
    const ValueArray missing = ValueArray::missingString();
    EXPECT_FALSE(truth(call1("isequal", {missing, missing})));
    const ValueArray strings = ValueArray::strings(Dims{1, 2}, {u"a", std::nullopt});
    EXPECT_EQ(numbers(call1("strcmp", {strings, str(u"a")})), (std::vector<double>{1, 0}));
    EXPECT_EQ(numbers(call1("strcmpi", {strings, str(u"A")})), (std::vector<double>{1, 0}));
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
