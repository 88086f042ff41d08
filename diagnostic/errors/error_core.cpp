// The error core: the silent first inputs, the description of an error, and
// the slot it is raised from.
#include "diagnostic/errors/error_core.hpp"

#include "diagnostic/errors/error_structure.hpp"
#include "diagnostic/module/diagnostic_ids.hpp"
#include "diagnostic/module/message_input_analyzer.hpp"

#include <optional>

namespace orrery::diagnostic {

using value::ClassId;
using value::ValueArray;

bool isSilentMessage(const ValueArray& first) {
    if (first.isEmpty()) {
        for (ClassId id : {ClassId::Struct, ClassId::Char, ClassId::Double, ClassId::Object}) {
            if (first.is(id)) return true;
        }
    }
    return first.isTextScalarTolerant() && first.textView().empty();
}

// The analysis and its temporaries end here, before anything is raised.
except::QExceptionEnvelope describeError(std::int32_t inputCount, const ValueArray* const* inputs) {
    MessageInputAnalyzer analyzer(inputCount, inputs, ids::kErrorPrefix);
    switch (analyzer.kind()) {
        case MessageKind::MessageObject: return except::QExceptionEnvelope(*analyzer.ingredients());
        case MessageKind::Structure: {
            ErrorStructure error = readErrorStructure(*inputs[0]);
            return {std::move(error.identifier), std::move(error.message), std::move(error.stack), 1};
        }
        case MessageKind::Text: return {analyzer.takeIdentifier(), analyzer.formatMessage(), std::nullopt, 1};
        default: return {"", u"", std::nullopt, 1};
    }
}

// A frame with something to destroy costs the unwinder an extra pass, which
// would dominate the cost of an error; hence the slot.
except::QExceptionEnvelope& pendingEnvelope(except::QExceptionEnvelope envelope) {
    thread_local std::optional<except::QExceptionEnvelope> slot;
    return slot.emplace(std::move(envelope));
}

}  // namespace orrery::diagnostic
