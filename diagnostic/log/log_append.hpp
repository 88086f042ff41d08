// Reopening an existing warning log to write more warnings before its footer.
#pragma once

#include "diagnostic/log/log_output_stream.hpp"

#include <memory>
#include <string>

namespace orrery::lang::diagnostic {

/// Takes the existing log file open at file (readable and writable) for
/// appending. Under the file's lock it refuses a log that is not UTF-8
/// ("ORRERY:warning:LogFile:NotUTF8" with the path and the encoding: a UTF-16
/// or UTF-32 byte-order mark or layout, or a declaration naming another encoding)
/// and finds where its footer starts with scanLog: a file that the reader rejects
/// raises the reader's error, and one without a closing "log" tag "FileSeek". In
/// every refusal the file is left as it was. Whatever follows the footer (what a
/// warning cut short left) is cut off before the next warning.
std::shared_ptr<LogOutputStream> appendToLog(const std::u16string& path, LogFileDescriptor file, LogSync sync);

}  // namespace orrery::lang::diagnostic
