// The last warning as a built-in's outputs.
#include "diagnostic/warnings/last_warning_outputs.hpp"

#include <string>

namespace orrery::diagnostic {

void produceLastWarningOutputs(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context) {
    std::u16string message;
    std::string identifier;
    warning::utGetLastWarningMsg(context, message, identifier);
    plhs[0] = value::makeValue(value::ValueArray::chars(message));
    if (nlhs > 1) plhs[1] = value::makeValue(value::ValueArray::charsFromUtf8(identifier));
}

}  // namespace orrery::diagnostic
