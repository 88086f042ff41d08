// File-system helpers on UTF-16 paths: resolving, dot handling, directory test, extension.
//
// Paths are UTF-16 texts; they reach the file system as UTF-8. Every helper that
// takes a path raises the text layer's "ORRERY:text:invalidUtf16" for a path with
// an unpaired surrogate, and "ORRERY:text:invalidUtf8" should the file system hand
// back a name that is not UTF-8. File-system failures other than these never raise:
// the helpers fall back to the purely lexical answer.
#pragma once

#include <orrery/export.hpp>

#include <string>
#include <string_view>

namespace orrery::files {

/// Makes `path` absolute, in place. An existing file or directory gets its
/// canonical path (symbolic links, "." and ".." resolved, no trailing separator).
/// A missing one gets the canonical path of its longest existing leading part
/// followed by the rest, with "." and ".." resolved lexically; a trailing separator
/// of a missing path stays. An empty path stays empty.
ORRERY_API void resolveCanonicalIfExistsElseAbsolute(std::u16string& path);

/// Removes the "." components of `path`, in place. A "." at the end leaves a
/// trailing separator ("a/." becomes "a/"); a relative path made only of dots becomes ".".
ORRERY_API void handleSingleDots(std::u16string& path);

/// Resolves the ".." components of `path` lexically, in place: each one removes the
/// component before it, ".." directly under the root is dropped, and a relative
/// path keeps the ".." that have nothing left to remove ("../a" stays "../a").
/// Also removes "." components and repeated separators.
ORRERY_API void handleDotDots(std::u16string& path);

/// True when `path` names an existing directory (following symbolic links).
ORRERY_API bool isDir(std::u16string_view path);

/// The path in the operating system's own spelling (its preferred separator).
ORRERY_API std::u16string nativeForm(std::u16string_view path);

/// The extension of the last component, without its dot; empty when there is
/// none. "x.XML" gives "XML"; "a.b/c", ".profile" and "a." give "".
ORRERY_API std::u16string extensionOf(std::u16string_view path);

}  // namespace orrery::files
