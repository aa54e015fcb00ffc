#pragma once

#include <string_view>

namespace vantor::win32 {

/// Whether the owner or the access list of a file or folder lets somebody write to it, make something in it, or change
/// who may, other than this user, the system and its administrators. True for what is a link to elsewhere, and when it
/// can't be read.
[[nodiscard]] bool AccessListLetsOthersWrite(std::wstring_view path);

}  // namespace vantor::win32
