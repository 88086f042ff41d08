// Property reads and copy-on-write property writes on object arrays.
#include <orrery/except/internal_error.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/ocos_messages.hpp>
#include <orrery/text/text.hpp>

#include <stdexcept>

namespace orrery::ocos {

namespace {

const COSClassInfo& classOf(const value::ValueArray& objects) {
    const auto& info = objects.classInfo();
    if (!info) except::internalError("class system", "object array without a class");
    return *info;
}

const COSPropInfo& propertyOf(const COSClassInfo& info, std::string_view name) {
    const COSPropInfo* property = info.findProperty(name);
    if (property == nullptr) {
        except::throwMessage(messages::NoSuchProperty(text::utf8ToUtf16(name), text::utf8ToUtf16(info.getName())));
    }
    return *property;
}

}  // namespace

std::shared_ptr<COSObject> validInstanceAt(const value::ValueArray& objects, std::size_t index) {
    const COSClassInfo& info = classOf(objects);
    std::shared_ptr<COSObject> instance = objects.objectAt(index);
    if (!instance) except::throwMessage(messages::InvalidElement(index + 1, text::utf8ToUtf16(info.getName())));
    return instance;
}

value::ValueArray getProperty(const value::ValueArray& objects, std::size_t index, std::string_view name) {
    const COSPropInfo& property = propertyOf(classOf(objects), name);
    return property.read(*validInstanceAt(objects, index));
}

void setProperty(value::ValueArray& objects, std::size_t index, std::string_view name, const value::ValueArray& value) {
    const COSClassInfo& info = classOf(objects);
    const COSPropInfo& property = propertyOf(info, name);
    std::shared_ptr<COSObject> instance = validInstanceAt(objects, index);
    PropertyValue converted = property.accept(value, info.getName());
    // Storing the instance back gives objects data of its own; any other holder
    // of the instance (an earlier copy of the array, a cell) then shows up in
    // the use count beside objects' slot and this local.
    objects.setObjectAt(index, instance);
    if (instance.use_count() > 2) {
        std::shared_ptr<COSObject> own = instance->clone();
        property.assign(*own, std::move(converted));
        objects.setObjectAt(index, std::move(own));
        return;
    }
    property.assign(*instance, std::move(converted));
}

value::ValueArray newObjectArray(std::shared_ptr<const COSClassInfo> classInfo, value::Dims dims) {
    if (!classInfo) except::internalError("class system", "object array without a class");
    const COSClassInfo& info = *classInfo;
    value::ValueArray objects = value::ValueArray::objectArray(std::move(classInfo), std::move(dims));
    for (std::size_t i = 0; i < objects.numel(); ++i) objects.setObjectAt(i, info.newInstance());
    return objects;
}

}  // namespace orrery::ocos
