// Feeds one value of every class and shape to each error built-in, in every
// argument position that matters: the only accepted outcomes are a normal
// return, a catalogued failure or a user error.
#include "diagnostic/errors/error_builtins.hpp"

#include "tests/support/builtin_call.hpp"

#include <orrery/except/msg_id_exception.hpp>
#include <orrery/ocos/class_info.hpp>
#include <orrery/ocos/message_object.hpp>

#include <cmath>

using namespace orrery;
using namespace orrery::testing;

namespace {

std::vector<std::pair<std::string, ValueArray>> everyKindOfValue() {
    const auto thing = std::make_shared<ocos::COSClassInfo>("probe.Thing");
    auto messages = ValueArray::objectArray(ocos::messageClass(), Dims{1, 2});
    messages.setObjectAt(0, ocos::makeMessageObject({"ORRERY:assertion:failed", {}}).objectAt(0));
    auto halfStack = ValueArray::stackStructure(2);
    halfStack.setField(0, "file", chars("f"));
    std::vector<std::pair<std::string, ValueArray>> values = {
        {"double scalar", ValueArray::scalar(2.5)},
        {"NaN", ValueArray::scalar(std::nan(""))},
        {"double 0-by-0", ValueArray()},
        {"logical true", ValueArray::logicalScalar(true)},
        {"char row", chars("a:b")},
        {"format", chars("%d %s %c %e\\n")},
        {"char 0-by-0", chars("")},
        {"char matrix", ValueArray::charArray(Dims{2, 2}, u"abcd")},
        {"char non-ASCII", ValueArray::chars(u"r\u00e9set")},
        {"char lone surrogate", ValueArray::chars(u"a:b\xd800</")},
        {"hotlinks flag", chars("-hotlinks")},
        {"string scalar", ValueArray::string(u"x:y")},
        {"string missing", ValueArray::missingString()},
        {"string 1-by-2", ValueArray::strings(Dims{1, 2}, {u"a", std::nullopt})},
        {"cell 1-by-2", ValueArray::cell(Dims{1, 2})},
        {"struct 1-by-1 bare", ValueArray::structArray(Dims{1, 1})},
        {"struct 1-by-1 unset fields", ValueArray::structArray(Dims{1, 1}, {"identifier", "message", "stack"})},
        {"struct 2-by-1", ValueArray::structArray(Dims{2, 1}, {"message"})},
        {"stack half set", halfStack},
        {"message object", ocos::makeMessageObject({"ORRERY:lasterr:badMessageIdentifier", {u"q"}})},
        {"message array with invalid element", messages},
        {"message 0-by-0", ValueArray::objectArray(ocos::messageClass(), Dims{0, 0})},
        {"other object", ValueArray::objectArray(thing, Dims{1, 1})},
    };
    for (ClassId id : {ClassId::Single, ClassId::Int8, ClassId::UInt64}) {
        values.emplace_back(std::string(value::className(id)) + " scalar", ValueArray::numericScalar(id, 1));
        values.emplace_back(std::string(value::className(id)) + " empty", ValueArray::zeros(id, Dims{0, 0}));
    }
    values.emplace_back(
        "struct with everything",
        orrery::testing::structOf({{"identifier", chars("a:b")}, {"message", chars("m")}, {"stack", halfStack}}));
    return values;
}

void expectOnlyAcceptedOutcomes(value::BuiltinFunction builtin, std::int32_t nlhs, const std::vector<ValueArray>& in) {
    const orrery::testing::InputList inputs(in);
    std::vector<value::ValueArrayPtr> slots(3);
    try {
        builtin(nlhs, slots.data(), inputs.count(), inputs.data());
    } catch (const except::IMsgIDException&) {
    } catch (const except::QException&) {
    } catch (const std::exception& other) {
        ADD_FAILURE() << "uncatalogued failure: " << other.what();
    }
    EXPECT_EQ(slots[2], nullptr);
}

}  // namespace

TEST(AnyInput, NeverBreaksAnErrorBuiltin) {
    const std::pair<const char*, value::BuiltinFunction> builtins[] = {
        {"error", &bnFullErrorFcn}, {"assert", &bnFullAssertFcn},   {"rethrow", &bnStructRethrowFcn},
        {"lasterr", &bnLastErrMsg}, {"lasterror", &bnLastErrorFcn},
    };
    const auto values = everyKindOfValue();
    for (const auto& [builtinName, builtin] : builtins) {
        for (const auto& [valueName, v] : values) {
            SCOPED_TRACE(std::string(builtinName) + " with " + valueName);
            const std::vector<std::vector<ValueArray>> layouts = {
                {v},
                {v, v},
                {v, chars("x %d")},
                {chars("a:b"), v},
                {chars("a:b"), chars("%d %s"), v},
                {ValueArray::logicalScalar(false), v},
                {ValueArray::logicalScalar(false), chars("a:b"), chars("%g"), v},
                {chars("-hotlinks"), v},
            };
            for (const auto& layout : layouts) {
                for (std::int32_t nlhs = 0; nlhs <= 2; ++nlhs) expectOnlyAcceptedOutcomes(builtin, nlhs, layout);
            }
            except::QException::LastError::Set("", u"", std::nullopt);
        }
    }
}
