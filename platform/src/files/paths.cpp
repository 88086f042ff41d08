// File-system helpers on UTF-16 paths, on std::filesystem.
#include <orrery/files/paths.hpp>
#include <orrery/text/text.hpp>

#include <filesystem>
#include <system_error>

namespace orrery::files {
namespace {

namespace fs = std::filesystem;

// The file system's narrow encoding is UTF-8 on the hosts we build for.
fs::path toPath(std::u16string_view path) { return fs::path(text::utf16ToUtf8(path)); }

std::u16string fromPath(const fs::path& path) { return text::utf8ToUtf16(path.native()); }

}  // namespace

void resolveCanonicalIfExistsElseAbsolute(std::u16string& path) {
    if (path.empty()) return;
    const fs::path given = toPath(path);
    std::error_code failure;
    fs::path absolute = fs::absolute(given, failure);
    if (failure) absolute = given;
    // Canonical for an existing path; for a missing one, canonical up to the first
    // missing component and lexically normal after it.
    fs::path resolved = fs::weakly_canonical(absolute, failure);
    if (failure) resolved = absolute.lexically_normal();
    path = fromPath(resolved);
}

void handleSingleDots(std::u16string& path) {
    const fs::path given = toPath(path);
    fs::path kept;
    bool lastWasDot = false;
    for (const fs::path& component : given) {
        lastWasDot = component == ".";
        if (!lastWasDot) kept /= component;
    }
    if (lastWasDot && !kept.empty()) kept /= "";
    if (kept.empty() && !given.empty()) kept = ".";
    path = fromPath(kept);
}

void handleDotDots(std::u16string& path) {
    if (path.empty()) return;
    path = fromPath(toPath(path).lexically_normal());
}

bool isDir(std::u16string_view path) {
    std::error_code failure;
    return fs::is_directory(toPath(path), failure);
}

std::u16string nativeForm(std::u16string_view path) { return fromPath(toPath(path).make_preferred()); }

std::u16string extensionOf(std::u16string_view path) {
    const std::u16string extension = fromPath(toPath(path).extension());
    return extension.empty() ? extension : extension.substr(1);
}

}  // namespace orrery::files
