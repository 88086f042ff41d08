// Built-ins of catalogue messages: message makes a message object, getString
// gives its formatted text.
#include "shell/builtins/builtin_groups.hpp"
#include "shell/builtins/builtin_messages.hpp"
#include "shell/builtins/builtin_support.hpp"

#include <orrery/catalogue/catalogue.hpp>
#include <orrery/except/argument_errors.hpp>
#include <orrery/except/throw_message.hpp>
#include <orrery/ocos/message_object.hpp>
#include <orrery/text/text.hpp>

#include <limits>

namespace orrery::shell::builtins {
namespace {

// A message argument: text, or a numeric or logical scalar.
catalogue::MessageArgument messageArgument(const ValueArray& v) {
    if (v.isTextScalarTolerant()) return v.text();
    if (v.isScalar() && (v.isNumeric() || v.is(ClassId::Logical))) return v.realAt(0);
    except::throwMessage(messages::BadMessageArgument());
}

// message(id, args...): the identifier must have a catalogue entry.
void bnMessage(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, std::numeric_limits<std::int32_t>::max());
    catalogue::MessageContent content;
    content.identifier = textArgumentUtf8(*prhs[0], "message", 1);
    if (!catalogue::hasMessage(content.identifier))
        except::throwMessage(messages::UnknownMessage(text::utf8ToUtf16(content.identifier)));
    for (const ValueArray* argument : argumentsOf(nrhs, prhs).subspan(1))
        content.arguments.push_back(messageArgument(*argument));
    // arguments that do not fit the text are refused here, not when it is shown
    static_cast<void>(content.text());
    plhs[0] = makeValue(ocos::makeMessageObject(std::move(content)));
}

void bnGetString(std::int32_t nlhs, ValueArrayPtr* plhs, std::int32_t nrhs, const ValueArray* const* prhs) {
    checkArgumentCounts(nlhs, 1, nrhs, 1, 1);
    const ValueArray& m = *prhs[0];
    if (!ocos::isMessageObject(m) || !m.isScalar()) except::throwMessage(messages::NotMessage());
    plhs[0] = makeValue(ValueArray::chars(ocos::messageContentOf(m).text()));
}

constexpr BuiltinEntry table[] = {{"message", bnMessage}, {"getString", bnGetString}};

}  // namespace

std::span<const BuiltinEntry> messageBuiltins() { return table; }

}  // namespace orrery::shell::builtins
