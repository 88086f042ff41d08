// One warning record as the "warning" element of a warning log.
#pragma once

#include <orrery/lang/warning.hpp>

#include <string>

namespace orrery::lang::diagnostic {

/// The record's "warning" element, every line indented by the log's indentation
/// unit and ended by a line feed: the start tag with identifier (as it is),
/// wasDisabled and the time text (logTimeText); "message" and "format", also when
/// empty; one "arg" per argument with its type name; one "frame" per stack frame;
/// the end tag. Texts are escaped with escapeLogText.
std::u16string renderWarningElement(const Warning& warning);

}  // namespace orrery::lang::diagnostic
