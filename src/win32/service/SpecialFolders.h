#pragma once

#include <string>
#include <string_view>

namespace vantor::win32 {

/// The path of a special folder by its name in "WScript.Shell", determined by plain Windows calls; "" if there is no
/// such name or folder.
[[nodiscard]] std::wstring PlainSpecialFolder(std::wstring_view name);

}  // namespace vantor::win32
