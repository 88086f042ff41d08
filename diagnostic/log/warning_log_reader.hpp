// Reading warning log files back: the whole list of records, or only the position
// of the closing "log" tag.
#pragma once

#include "diagnostic/log/log_file_descriptor.hpp"
#include "diagnostic/log/warning_log_events.hpp"

#include <orrery/lang/warning.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace orrery::lang::diagnostic {

/// Every read parses the file to its end. After the root element it accepts
/// whitespace, comments and, once, the remains of an append cut short
/// (isWhitespaceThenInterruptedAppend), which it ignores; anything else there is
/// "ORRERY:warning:XMLParser:ParseError" with the parser's text, line and column.

/// The records of the log file, in file order. The name is normalised first
/// (normaliseLogFileName). Raises the "LogFile" and "XMLParser" identifiers of
/// the reader, or Boost's bad lexical conversion for an argument whose text does
/// not convert; nothing is returned in part.
std::vector<Warning> readWarningLog(const std::u16string& fileName);

/// Reads as readWarningLog does, but builds each record, in file order, where
/// the store says, keeping none itself: the caller holds the records as it likes
/// while the file is read. On a failure, the records already in the store
/// (the last perhaps in part) are the caller's to drop.
void readWarningLog(const std::u16string& fileName, const WarningRecordStore& store);

/// The records of the log file at path, which is used as given (readWarningLog
/// after normalising its name). Only a regular file is read (openExistingLogFile),
/// so a name leading to a pipe or device is refused at once. Raises as
/// readWarningLog does.
std::vector<Warning> readWarningLogFile(const std::u16string& path);

/// What scanning a log finds: where its closing "log" tag begins (a byte offset
/// from the start of the file, 0 when the parser reached none) and the encoding
/// its XML declaration names (empty without one).
struct LogScan {
    std::uint64_t logEnd = 0;
    std::string declaredEncoding;
};

/// Scans the open file from its start, checking the structure as readWarningLog
/// does without building records or reading times; path names it in messages.
LogScan scanLog(const LogFileDescriptor& file, const std::u16string& path);

/// scanLog of the file at path, used as given; answers the closing tag's offset.
std::uint64_t findLogEnd(const std::u16string& path);

/// Checks the log file as readWarningLog does (its name normalised first) and
/// hands visitHead each warning's identifier, wasDisabled and time, in file
/// order, without building records: memory stays the same whatever the file's
/// size. Raises as readWarningLog does.
void visitWarningLog(const std::u16string& fileName, const WarningHeadVisitor& visitHead);

}  // namespace orrery::lang::diagnostic
