#pragma once

#include <string_view>

namespace vantor::text {

/// "c:" of a path on a lettered drive, "\\server\share" of one on a share; "" when the path names neither.
[[nodiscard]] std::wstring_view DriveName(std::wstring_view path);

/// Whether a path may lead to another computer without a drive's letter: it begins with two slashes or backslashes, in
/// any mixture, or with "\??\".
[[nodiscard]] bool LeadsElsewhere(std::wstring_view path);

/// The path behind "\\?\" where a lettered drive follows; any other path as it is.
[[nodiscard]] std::wstring_view WithoutLiteralMark(std::wstring_view path);

}  // namespace vantor::text
