// The host's "message" class: instances holding a catalogue message content.
#include <orrery/catalogue/catalogue.hpp>
#include <orrery/except/host_messages.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/message_object.hpp>
#include <orrery/ocos/method_info.hpp>
#include <orrery/ocos/object_access.hpp>
#include <orrery/ocos/ocos_messages.hpp>
#include <orrery/ocos/prop_template.hpp>
#include <orrery/text/text.hpp>

#include <variant>

namespace orrery::ocos {

namespace {

constexpr std::string_view messageClassName = "message";

class MessageInstance final : public COSObject {
public:
    explicit MessageInstance(catalogue::MessageContent content) : content_(std::move(content)) {}
    std::shared_ptr<COSObject> clone() const override { return std::make_shared<MessageInstance>(*this); }
    const catalogue::MessageContent& content() const noexcept { return content_; }

private:
    catalogue::MessageContent content_;
};

value::ValueArray argumentsCell(const MessageInstance& message) {
    const auto& arguments = message.content().arguments;
    value::ValueArray cell = value::ValueArray::cell(value::Dims{1, arguments.size()});
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const auto* text = std::get_if<std::u16string>(&arguments[i]);
        cell.setCellAt(i, text != nullptr ? value::ValueArray::chars(*text)
                                          : value::ValueArray::scalar(std::get<double>(arguments[i])));
    }
    return cell;
}

/// getString(msg): the formatted text of a message scalar.
class GetStringMI final : public COSMethodInfo {
public:
    GetStringMI() : COSMethodInfo("getString", COSMethodSignature({messageClassName}, {"unicodeString"})) {}

    void invoke(std::int32_t /*nlhs*/, value::ValueArrayPtr* plhs, std::int32_t /*nrhs*/,
                const value::ValueArray* const* prhs) const override {
        if (!prhs[0]->isScalar()) except::throwMessage(except::host::NotScalar());
        plhs[0] = value::makeValue(value::ValueArray::chars(messageContentOf(*prhs[0]).text()));
    }
};

std::shared_ptr<const COSClassInfo> describeMessageClass() {
    auto info = std::make_shared<COSClassInfo>(std::string(messageClassName));
    info->addProperty(makeReadOnlyProperty<MessageInstance>(
        "Identifier", "asciiString", [](const MessageInstance& message) { return message.content().identifier; }));
    info->addProperty(makeReadOnlyProperty<MessageInstance>("Arguments", "cell", argumentsCell));
    info->addMethod(std::make_shared<GetStringMI>());
    info->setInstanceFactory([] { return std::make_shared<MessageInstance>(catalogue::MessageContent{}); });
    return info;
}

}  // namespace

std::shared_ptr<const COSClassInfo> messageClass() {
    static const std::shared_ptr<const COSClassInfo> info = describeMessageClass();
    return info;
}

value::ValueArray makeMessageObject(catalogue::MessageContent content) {
    if (!catalogue::hasMessage(content.identifier)) {
        except::throwMessage(messages::NoSuchMessage(text::utf8ToUtf16(content.identifier)));
    }
    value::ValueArray object = value::ValueArray::objectArray(messageClass(), value::Dims{1, 1});
    object.setObjectAt(0, std::make_shared<MessageInstance>(std::move(content)));
    return object;
}

bool isMessageObject(const value::ValueArray& value) {
    return value.is(value::ClassId::Object) && value.className() == messageClassName;
}

catalogue::MessageContent messageContentOf(const value::ValueArray& value, std::size_t i) {
    if (!isMessageObject(value)) {
        except::throwMessage(
            except::host::WrongClass(text::asciiToUtf16(messageClassName), text::utf8ToUtf16(value.className())));
    }
    return instanceAs<MessageInstance>(*validInstanceAt(value, i)).content();
}

}  // namespace orrery::ocos
