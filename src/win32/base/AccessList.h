#pragma once

#include <string_view>

namespace vantor::win32 {

/// Whether the owner or the access list of a file or folder lets anyone but this user, the system and administrators
/// write to it, create something in it, or change its permissions. Also true for links, and if it can't be determined.
[[nodiscard]] bool AccessListLetsOthersWrite(std::wstring_view path);

}  // namespace vantor::win32
