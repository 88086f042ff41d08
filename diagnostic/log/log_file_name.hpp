// The one form of a warning log file name: absolute, resolved, with ".xml".
#pragma once

#include <string>

namespace orrery::lang::diagnostic {

/// The name as an absolute, resolved path with the extension ".xml" (added when
/// the name as given has none; any letter case of "xml" is kept as given). Raises
/// "ORRERY:warning:LogFile:EmptyName", "DirSpecified" or "BadExtension" before
/// any file is touched.
std::u16string normaliseLogFileName(const std::u16string& name);

}  // namespace orrery::lang::diagnostic
