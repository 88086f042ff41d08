// Creating a new warning log file as a complete empty document.
#pragma once

#include "diagnostic/log/log_output_stream.hpp"

#include <memory>
#include <string>

namespace orrery::lang::diagnostic {

/// Creates the log file at path holding the header and the footer, and answers
/// it open for writing; answers none when a file has come into being at path
/// meanwhile (another writer created it). Where the file system allows it, the
/// document is written to a file without a name in the log's folder and then
/// given the log's name, so that the name never stands for a file that does not
/// load; elsewhere the file is created exclusively and written in place. Never
/// creates through a symbolic link: a name that is a link to a missing file raises
/// "ORRERY:warning:LogFile:DanglingLink". Raises "OpenFileWrite" when the file
/// cannot be made and "FileWrite" when the document cannot be written.
std::shared_ptr<LogOutputStream> createLogFile(const std::u16string& path, LogSync sync);

}  // namespace orrery::lang::diagnostic
