// One warning record as the "warning" element of a warning log.
#pragma once

#include <orrery/lang/warning.hpp>

#include <string>

namespace orrery::lang::diagnostic {

/// Appends the record's "warning" element in UTF-8 to out, every line indented
/// by the log's indentation unit and ended by a line feed: the start tag with
/// identifier (as it is), wasDisabled and the time text (appendLogTimeText);
/// "message" and "format", also when empty; one "arg" per argument with its type
/// name; one "frame" per stack frame; the end tag. Texts are escaped with
/// appendEscapedLogText. A buffer kept across warnings needs no new memory for
/// warnings of the sizes it has seen.
void appendWarningElement(std::string& out, const Warning& warning);

/// The record's element alone (appendWarningElement).
std::string renderWarningElement(const Warning& warning);

}  // namespace orrery::lang::diagnostic
