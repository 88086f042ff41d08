// The Warning class's properties, methods and instances.
#include "diagnostic/classes/warning_info.hpp"

#include "diagnostic/classes/warning_instance.hpp"
#include "diagnostic/classes/warning_methods.hpp"

#include <orrery/ocos/prop_template.hpp>

#include <string>

namespace orrery::lang::diagnostic {
namespace {

using value::ValueArray;

/// A property whose getter and setter are the record's own accessors.
template <class Get, class Set>
ocos::COSPropInfo recordProperty(std::string_view name, std::string_view typeText, Get get, Set set) {
    return ocos::makeProperty<WarningInstance>(
        name, typeText, [get](const WarningInstance& instance) { return get(instance.record()); },
        [set](WarningInstance& instance, auto value) { set(instance.record(), std::move(value)); });
}

}  // namespace

WarningInfo::WarningInfo() : COSClassInfo(std::string(kWarningClassPath)) {
    addProperty(recordProperty(
        "identifier", "asciiString", [](const Warning& w) { return w.getIdentifier(); },
        [](Warning& w, std::string v) { w.setIdentifier(std::move(v)); }));
    addProperty(recordProperty(
        "message", "unicodeString", [](const Warning& w) { return w.getMessage(); },
        [](Warning& w, std::u16string v) { w.setMessage(std::move(v)); }));
    addProperty(recordProperty(
        "format", "unicodeString", [](const Warning& w) { return w.getFormat(); },
        [](Warning& w, std::u16string v) { w.setFormat(std::move(v)); }));
    addProperty(recordProperty(
        "arguments", "cell", [](const Warning& w) { return std::move(*w.getArgumentsAsValueArray()); },
        [](Warning& w, const ValueArray& v) { w.setArguments(&v); }));
    addProperty(recordProperty(
        "stack", "struct", [](const Warning& w) { return std::move(*w.getStackAsValueArray()); },
        [](Warning& w, const ValueArray& v) { w.setStack(&v); }));
    addProperty(recordProperty(
        "time", "double scalar", [](const Warning& w) { return w.getTime(); },
        [](Warning& w, double v) { w.setTime(v); }));
    addProperty(recordProperty(
        "wasDisabled", "logical scalar", [](const Warning& w) { return w.getWasDisabled(); },
        [](Warning& w, bool v) { w.setWasDisabled(v); }));

    addMethod(std::make_shared<IsEqualMI>());
    addMethod(std::make_shared<EqMI>());
    addMethod(std::make_shared<NeMI>());
    addMethod(std::make_shared<SortMI>());
    addMethod(std::make_shared<DispMI>());
    setInstanceFactory([] { return std::make_shared<WarningInstance>(); });
}

}  // namespace orrery::lang::diagnostic
