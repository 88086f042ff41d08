// Finding a warning log's footer again after other writers have changed the file.
#pragma once

#include "diagnostic/log/log_file_descriptor.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace orrery::lang::diagnostic {

/// The offset of the first footer (kLogFooter after a line feed) that starts
/// at or after from, reading the file from there to its end; none when there is
/// none. A written log holds exactly one such line, its footer, and perhaps a
/// second at the end of the remains of an append cut short, so the first is the
/// log's own. scratch is a buffer for the reads; path names the file in errors.
std::optional<std::uint64_t> findLogFooter(const LogFileDescriptor& file, std::uint64_t from, std::string& scratch,
                                           const std::u16string& path);

}  // namespace orrery::lang::diagnostic
