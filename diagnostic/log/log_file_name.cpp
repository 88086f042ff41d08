// The one form of a warning log file name: absolute, resolved, with ".xml".
#include "diagnostic/log/log_file_name.hpp"

#include "diagnostic/log/log_file_ids.hpp"

#include <orrery/except/throw_message.hpp>
#include <orrery/files/paths.hpp>
#include <orrery/text/text.hpp>

namespace orrery::lang::diagnostic {

namespace ids = orrery::diagnostic::ids;

std::u16string normaliseLogFileName(const std::u16string& name) {
    if (name.empty()) except::throwMessage(ids::LogFileEmptyName());

    std::u16string path = name;
    files::resolveCanonicalIfExistsElseAbsolute(path);
    files::handleSingleDots(path);
    files::handleDotDots(path);

    const std::u16string extension = path.empty() ? std::u16string() : files::extensionOf(files::nativeForm(path));
    if (!extension.empty()) {
        // Any other extension is refused rather than extended: "a.txt" never becomes "a.txt.xml".
        if (!text::equalsIgnoreCase(extension, u"xml")) except::throwMessage(ids::LogFileBadExtension(path));
        return path;
    }
    if (files::isDir(path)) except::throwMessage(ids::LogFileDirSpecified(path));
    return path + u".xml";
}

}  // namespace orrery::lang::diagnostic
