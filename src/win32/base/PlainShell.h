#pragma once

#include <string>
#include <string_view>

namespace vantor::win32 {

// What "WScript.Shell" does, by plain Windows calls.

/// The path of a special folder by its name in the object; "" if there is no such name or folder.
[[nodiscard]] std::wstring PlainSpecialFolder(std::wstring_view name);

/// A text in the registry by its full name, with the root's name spelt out ("HKEY_LOCAL_MACHINE\key\value"). Everything
/// fails silently.
[[nodiscard]] std::wstring PlainRegistryRead(std::wstring_view name);
void PlainRegistryWrite(std::wstring_view name, std::wstring_view value);
void PlainRegistryDelete(std::wstring_view name);

}  // namespace vantor::win32
