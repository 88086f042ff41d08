// Tests of the Warning class: its registration, its properties over the record,
// and the conversion of records to Warning objects.
#include "diagnostic/classes/warning_info.hpp"
#include "diagnostic/record/convert_warnings.hpp"
#include "tests/support/builtin_call.hpp"
#include "tests/support/expect_error.hpp"
#include "warning_arrays.hpp"

#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/registry.hpp>

using namespace warning_test;
using namespace orrery;
using lang::diagnostic::warningRecordAt;

namespace {

Warning fullRecord() {
    Warning w = record(738000.25, "demo:full");
    w.setFormat(u"%d of %s at %f");
    w.setArguments({lang::PrintfArgument(std::int32_t{-3}), lang::PrintfArgument(std::uint64_t{7}),
                    lang::PrintfArgument(u"\u00e9t\u00e9"), lang::PrintfArgument(0.5)});
    w.setStack({{u"/a/f.orr", u"f", 12}, {u"/a/g.orr", u"g", 0}});
    w.setWasDisabled(true);
    return w;
}

}  // namespace

TEST(WarningClass, IsRegisteredWithItsPropertiesMethodsAndLogFunctionsInOrder) {
    lang::diagnostic::registerWarningClassForModule();
    const auto info = ocos::getClass("orrery.internal.diagnostic.Warning");
    EXPECT_EQ(lang::diagnostic::warningClass(), info);
    EXPECT_EQ(info->getPropertyNames(), (std::vector<std::string>{"identifier", "message", "format", "arguments",
                                                                  "stack", "time", "wasDisabled"}));
    std::vector<std::string> types;
    for (const auto& property : info->getProperties()) {
        types.push_back(property.getType().text().str());
        EXPECT_FALSE(property.isReadOnly()) << property.getName().str();
    }
    EXPECT_EQ(types, (std::vector<std::string>{"asciiString", "unicodeString", "unicodeString", "cell", "struct",
                                               "double scalar", "logical scalar"}));
    EXPECT_EQ(info->getMethodNames(), (std::vector<std::string>{"isequal", "eq", "ne", "sort", "disp"}));
    EXPECT_EQ(ocos::findNamespace("orrery.internal.diagnostic.log")->getFunctionNames(),
              (std::vector<std::string>{"open", "close", "load", "summary"}));
    const auto& load = ocos::getFunction("orrery.internal.diagnostic.log.load")->getSignature();
    ASSERT_EQ(load.outputs().size(), 1U);
    EXPECT_EQ(load.outputs()[0].text().str(), "orrery.internal.diagnostic.Warning");
}

TEST(WarningClass, RegistersAgainOnlyWhenTheClassSystemKeepsPerInstanceStorage) {
    lang::diagnostic::registerWarningClassForModule();
    const auto first = lang::diagnostic::warningClass();
    lang::diagnostic::registerWarningClassForModule();
    EXPECT_EQ(lang::diagnostic::warningClass(), first);
    ocos::setPerInstanceStorage(true);
    lang::diagnostic::registerWarningClassForModule();
    ocos::setPerInstanceStorage(false);
    EXPECT_NE(lang::diagnostic::warningClass(), first);
}

TEST(WarningClass, ReadingAPropertyAndWritingItBackLeavesTheRecordUnchanged) {
    ValueArray objects = warnings(Dims{1, 2}, {record(1), fullRecord()});
    for (const auto& name : lang::diagnostic::warningClass()->getPropertyNames()) {
        SCOPED_TRACE(name);
        ocos::setProperty(objects, 1, name, ocos::getProperty(objects, 1, name));
        EXPECT_TRUE(warningRecordAt(objects, 1) == fullRecord());
    }
    EXPECT_EQ(ocos::getProperty(objects, 1, "identifier").textUtf8(), "demo:full");
    EXPECT_EQ(ocos::getProperty(objects, 1, "arguments").dims(), (Dims{1, 4}));
    EXPECT_EQ(ocos::getProperty(objects, 1, "stack").dims(), (Dims{2, 1}));
    EXPECT_TRUE(ocos::getProperty(objects, 1, "wasDisabled").logicalAt(0));
}

TEST(WarningClass, WritesAreTypedByTheClassSystemAndStoredUnchecked) {
    struct Case {
        const char* property;
        ValueArray value;
        bool accepted;
    } const cases[] = {
        {"identifier", ValueArray::chars(u"caf\u00e9"), false},
        {"message", ValueArray::missingString(), false},
        {"format", ValueArray::cell(Dims{1, 1}), false},
        {"arguments", ValueArray::structArray(Dims{1, 1}), false},
        {"stack", ValueArray::cell(Dims{1, 1}), false},
        {"time", ValueArray::numericScalar(value::ClassId::Int32, 1), false},
        {"wasDisabled", ValueArray::scalar(1), false},
        {"arguments", ValueArray::cell(Dims{0, 0}), true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.property) + " <- " + c.value.className());
        ValueArray object = warnings(Dims{1, 1}, {fullRecord()});
        if (c.accepted) {
            ocos::setProperty(object, 0, c.property, c.value);
        } else {
            EXPECT_MSGID(ocos::setProperty(object, 0, c.property, c.value), "ORRERY:ocos:propertyType");
            EXPECT_TRUE(warningRecordAt(object, 0) == fullRecord());
        }
    }
    ValueArray object = warnings(Dims{1, 1}, {fullRecord()});
    ocos::setProperty(object, 0, "identifier", ValueArray::string(u"not an identifier"));
    EXPECT_EQ(warningRecordAt(object, 0).getIdentifier(), "not an identifier");
    ocos::setProperty(object, 0, "time", ValueArray::scalar(-1.5));
    EXPECT_EQ(warningRecordAt(object, 0).getTime(), -1.5);
    ocos::setProperty(object, 0, "identifier", ValueArray::missingString());
    EXPECT_EQ(warningRecordAt(object, 0).getIdentifier(), "");
}

TEST(WarningClass, ConvertsRecordsToARowOfNewObjects) {
    lang::diagnostic::registerWarningClassForModule();
    const auto none = lang::diagnostic::convertWarningsToValueArray({});
    EXPECT_EQ(none->className(), "orrery.internal.diagnostic.Warning");
    EXPECT_EQ(none->dims(), (Dims{1, 0}));

    const std::vector<Warning> records{fullRecord(), record(2, ""), fullRecord()};
    const auto objects = lang::diagnostic::convertWarningsToValueArray(records);
    ASSERT_EQ(objects->dims(), (Dims{1, 3}));
    for (std::size_t i = 0; i < records.size(); ++i) EXPECT_TRUE(warningRecordAt(*objects, i) == records[i]) << i;
    EXPECT_NE(objects->objectAt(0), objects->objectAt(2)) << "each element is an instance of its own";
}
