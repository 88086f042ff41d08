// Property descriptions: typed reads and checked writes.
#include <orrery/except/internal_error.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/ocos_messages.hpp>
#include <orrery/ocos/prop_info.hpp>
#include <orrery/text/text.hpp>

#include <stdexcept>
#include <string>

namespace orrery::ocos {

namespace {

COSName checkedName(std::string_view name) {
    if (!isValidDottedName(name) || name.find('.') != std::string_view::npos) {
        except::internalError("class system", "bad property name \"" + std::string(name) + "\"");
    }
    return intern(name);
}

}  // namespace

COSPropInfo::COSPropInfo(std::string_view name, std::string_view typeText, Getter getter, Setter setter)
    : name_(checkedName(name)), type_(typeText), getter_(std::move(getter)), setter_(std::move(setter)) {
    if (!getter_) except::internalError("class system", "property \"" + name_.str() + "\" has no getter");
}

value::ValueArray COSPropInfo::read(const COSObject& instance) const { return getter_(instance); }

PropertyValue COSPropInfo::accept(const value::ValueArray& value, std::string_view className) const {
    using text::utf8ToUtf16;
    if (!setter_) except::throwMessage(messages::ReadOnlyProperty(utf8ToUtf16(name_.view()), utf8ToUtf16(className)));
    std::optional<PropertyValue> converted = type_.convert(value);
    if (!converted) {
        except::throwMessage(messages::PropertyType(utf8ToUtf16(name_.view()), utf8ToUtf16(className),
                                                    utf8ToUtf16(type_.text().view())));
    }
    return std::move(*converted);
}

void COSPropInfo::assign(COSObject& instance, PropertyValue converted) const {
    if (!setter_) except::internalError("class system", "assign to read-only property \"" + name_.str() + "\"");
    setter_(instance, std::move(converted));
}

void COSPropInfo::write(COSObject& instance, const value::ValueArray& value, std::string_view className) const {
    assign(instance, accept(value, className));
}

}  // namespace orrery::ocos
