#pragma once

#include <string>
#include <string_view>

namespace vantor::win32 {

/// A path in a form that wide calls accept at any length: one that is too long for the ordinary form is made absolute
/// and marked as literal.
[[nodiscard]] std::wstring CallPath(std::wstring_view path);

/// The absolute form of a path, relative to the current folder; the path itself if it has none.
[[nodiscard]] std::wstring FullPath(std::wstring_view path);

/// Whether there is a file, or a folder, with this path; on a 64-bit Windows, as a 64-bit program sees it. False for
/// anything that can't be examined.
[[nodiscard]] bool IsFile(std::wstring_view path);
[[nodiscard]] bool IsFolder(std::wstring_view path);

}  // namespace vantor::win32
