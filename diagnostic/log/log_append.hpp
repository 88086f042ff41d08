// Reopening an existing warning log to write more warnings before its footer.
#pragma once

#include "diagnostic/log/log_output_stream.hpp"

#include <memory>
#include <string>

namespace orrery::lang::diagnostic {

/// Opens the existing log file at path for update without truncation
/// ("ORRERY:warning:LogFile:OpenFileAppend") and stands at the start of its
/// footer as findLogEnd finds it ("FileSeek", also when it has none). A file
/// that the reader rejects raises the reader's error and is not written to.
std::shared_ptr<LogOutputStream> appendToLog(const std::u16string& path);

}  // namespace orrery::lang::diagnostic
