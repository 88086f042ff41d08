// The one form of a warning log file name: absolute, resolved, with ".xml".
#include "diagnostic/log/log_file_name.hpp"

#include "diagnostic/log/log_file_ids.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/files/paths.hpp>
#include <orrery/text/text.hpp>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;

namespace {

// Absolute, with links, "." and ".." resolved.
std::u16string resolvedLogPath(std::u16string path) {
    files::resolveCanonicalIfExistsElseAbsolute(path);
    files::handleSingleDots(path);
    files::handleDotDots(path);
    return path;
}

}  // namespace

// The extension is that of the name as given, not of where a symbolic link
// leads: a link to a device or to a file without ".xml" never makes the log a
// new file beside its target.
std::u16string normaliseLogFileName(const std::u16string& name) {
    if (name.empty()) except::throwMessage(ids::LogFileEmptyName());

    std::u16string path = resolvedLogPath(name);
    const std::u16string extension = files::extensionOf(files::nativeForm(name));
    if (!extension.empty()) {
        // Any other extension is refused rather than extended: "a.txt" never becomes "a.txt.xml".
        if (!text::equalsIgnoreCase(extension, u"xml")) except::throwMessage(ids::LogFileBadExtension(path));
        return path;
    }
    if (files::isDir(path)) except::throwMessage(ids::LogFileDirSpecified(path));
    return resolvedLogPath(name + u".xml");
}

}  // namespace orrery::lang::diagnostic
