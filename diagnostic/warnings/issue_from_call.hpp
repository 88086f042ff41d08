// Issuing the warning that a call of the warning built-in describes.
#pragma once

#include "diagnostic/module/message_input_analyzer.hpp"

#include <orrery/value/value_array.hpp>
#include <orrery/warning/warning_manager.hpp>

#include <cstdint>

namespace orrery::diagnostic {

/// Issues the warning of a text analysis (a message, or an identifier with a
/// format and its arguments) after filling the requested outputs with the last
/// warning from before. Deliberately, an empty message without identifier issues
/// nothing and only clears the last warning: warning('') is how it is cleared.
void issueTextWarning(std::int32_t nlhs, value::ValueArrayPtr* plhs, warning::WarningManagerContext* context,
                      MessageInputAnalyzer& analysis);

/// Issues the warning of a message-object analysis: the object's identifier, its
/// text in the current locale and its own arguments. Takes no outputs.
void issueMessageObjectWarning(std::int32_t nlhs, warning::WarningManagerContext* context,
                               const MessageInputAnalyzer& analysis);

}  // namespace orrery::diagnostic
