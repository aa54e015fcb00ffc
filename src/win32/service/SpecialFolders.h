#pragma once

#include <string>
#include <string_view>

namespace vantor::win32 {

/// The path of a special folder by the name that "WScript.Shell" has for it, asked of Windows itself; "" when
/// there is no such name or folder.
[[nodiscard]] std::wstring PlainSpecialFolder(std::wstring_view name);

}  // namespace vantor::win32
