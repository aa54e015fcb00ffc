#pragma once

#include <string>
#include <string_view>

namespace vantor::win32 {

/// A path as the wide calls take it at any length: one that is too long for the ordinary form is made full and
/// marked as to be taken literally.
[[nodiscard]] std::wstring CallPath(std::wstring_view path);

/// The full form of a path, from the current folder; the path itself when it has none.
[[nodiscard]] std::wstring FullPath(std::wstring_view path);

/// Whether there is a file, or a folder, of this path, as a 64-bit program would see it where Windows is one. False for
/// everything that can't be looked at.
[[nodiscard]] bool IsFile(std::wstring_view path);
[[nodiscard]] bool IsFolder(std::wstring_view path);

}  // namespace vantor::win32
