#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor::win32 {

/// A registry value by its full name, as "WScript.Shell" spells it ("HKEY_LOCAL_MACHINE\key\value"; the
/// roots have short names such as "HKLM"), accessed by plain Windows calls. Everything fails silently.
[[nodiscard]] std::wstring PlainRegistryRead(std::wstring_view name);
void PlainRegistryWrite(std::wstring_view name, std::wstring_view value);
void PlainRegistryDelete(std::wstring_view name);

}  // namespace vantor::win32
