#pragma once

#include <string_view>

namespace vantor::text {

/// "c:" of a path on a lettered drive, "\\server\share" of one on a share; "" when the path names neither.
[[nodiscard]] std::wstring_view DriveName(std::wstring_view path);

}  // namespace vantor::text
