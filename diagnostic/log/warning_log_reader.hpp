// Reading warning log files back: the whole list of records, or only the position
// of the closing "log" tag.
#pragma once

#include <orrery/lang/warning.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace orrery::lang::diagnostic {

/// Every read ends at the end of the document's root element: what follows it in
/// the file is not read (it can only be what a warning whose writing was cut
/// short left after the footer).

/// The records of the log file, in file order. The name is normalised first
/// (normaliseLogFileName). Raises the "LogFile" and "XMLParser" identifiers of
/// the reader, or Boost's bad lexical conversion for an argument whose text does
/// not convert; nothing is returned in part.
std::vector<Warning> readWarningLog(const std::u16string& fileName);

/// The records of the log file at path, which is used as given (readWarningLog
/// after normalising its name). Raises as readWarningLog does.
std::vector<Warning> readWarningLogFile(const std::u16string& path);

/// The byte offset from the start of the file at which its closing "log" tag
/// begins (0 when the parser reached none). The name is used as given. Checks the
/// structure as readWarningLog does, without building records or reading times.
std::uint64_t findLogEnd(const std::u16string& fileName);

}  // namespace orrery::lang::diagnostic
