// Positioned reads and writes of an open warning log file that finish what they
// start, whatever the system does in pieces.
#pragma once

#include "diagnostic/log/log_file_descriptor.hpp"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace orrery::lang::diagnostic {

/// Writes the pieces one after the other from offset, however many writes the
/// system takes. Raises "ORRERY:warning:LogFile:FileWrite" with the path and the
/// system's text for the error; the bytes written before the failure stay.
void writeLogBytesAt(const LogFileDescriptor& file, std::uint64_t offset,
                     std::initializer_list<std::string_view> pieces, const std::u16string& path);

/// Reads up to size bytes from offset into out and answers how many it read,
/// fewer only at the end of the file. Raises "ORRERY:warning:LogFile:FileRead"
/// with the path and the system's text for the error.
std::size_t readLogBytesAt(const LogFileDescriptor& file, std::uint64_t offset, char* out, std::size_t size,
                           const std::u16string& path);

/// Replaces out with the bytes from offset to the end of the file.
void readLogBytesToEnd(const LogFileDescriptor& file, std::uint64_t offset, std::string& out,
                       const std::u16string& path);

}  // namespace orrery::lang::diagnostic
