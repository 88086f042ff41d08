// Reopening an existing warning log to write more warnings before its footer.
#pragma once

#include "diagnostic/log/log_output_stream.hpp"

#include <memory>
#include <string>

namespace orrery::lang::diagnostic {

/// Opens the existing log file at path for update without truncation
/// ("ORRERY:warning:LogFile:OpenFileAppend"); the next element goes where its
/// footer starts, as findLogEnd finds it ("FileSeek" when it has none). A file
/// that the reader rejects raises the reader's error and is not written to.
/// Bytes after the footer (what a warning cut short left) are cut off after the
/// next warning.
std::shared_ptr<LogOutputStream> appendToLog(const std::u16string& path, LogSync sync);

}  // namespace orrery::lang::diagnostic
