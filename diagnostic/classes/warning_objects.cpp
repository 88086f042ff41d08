// Warning objects: lookup of the class, records of elements, new instances.
#include "diagnostic/classes/warning_objects.hpp"

#include "diagnostic/classes/class_ids.hpp"
#include "diagnostic/classes/warning_info.hpp"
#include "diagnostic/classes/warning_instance.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/registry.hpp>
#include <orrery/text/text.hpp>

#include <utility>

namespace orrery::lang::diagnostic {

std::shared_ptr<const ocos::COSClassInfo> warningClass() { return ocos::getClass(kWarningClassPath); }

const Warning& warningRecordAt(const value::ValueArray& objects, std::size_t index) {
    const WarningInstance* instance = nullptr;
    if (objects.is(value::ClassId::Object) && index < objects.numel() && objects.isValidElement(index))
        instance = dynamic_cast<const WarningInstance*>(objects.objectAt(index).get());
    if (instance == nullptr)
        except::throwMessage(orrery::diagnostic::ids::InvalidWarningElement(text::utf8ToUtf16(objects.className())));
    // The array keeps the instance alive for as long as the caller holds it.
    return instance->record();
}

value::ValueArray newWarningArray(value::Dims dims) {
    return value::ValueArray::objectArray(warningClass(), std::move(dims));
}

void setWarningAt(value::ValueArray& objects, std::size_t index, Warning record) {
    objects.setObjectAt(index, std::make_shared<WarningInstance>(std::move(record)));
}

}  // namespace orrery::lang::diagnostic
