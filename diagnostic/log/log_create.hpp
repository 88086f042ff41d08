// Creating a new warning log file as a complete empty document.
#pragma once

#include "diagnostic/log/log_output_stream.hpp"

#include <memory>
#include <string>

namespace orrery::lang::diagnostic {

/// Creates the log file at path holding the header and the footer. Where the
/// file system allows it, the document is written to a file without a name in
/// the log's folder and then given the log's name, so that the name never stands
/// for a file that does not load; elsewhere the file is created, truncated and
/// written in place. Raises "ORRERY:warning:LogFile:OpenFileWrite" when the file
/// cannot be made and "FileWrite" when the document cannot be written.
std::shared_ptr<LogOutputStream> createLogFile(const std::u16string& path, LogSync sync);

}  // namespace orrery::lang::diagnostic
