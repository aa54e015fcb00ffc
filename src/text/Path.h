#pragma once

#include <string_view>

namespace vantor::text {

/// "c:" of a path on a lettered drive, "\\server\share" of one on a share; "" if the path has neither.
[[nodiscard]] std::wstring_view DriveName(std::wstring_view path);

/// Whether a path may lead to another computer without a drive's letter: it begins with two slashes or backslashes, in
/// any mixture, or with "\??\".
[[nodiscard]] bool LeadsElsewhere(std::wstring_view path);

/// The path without its "\\?\" if a drive letter follows that; any other path unchanged.
[[nodiscard]] std::wstring_view WithoutLiteralMark(std::wstring_view path);

}  // namespace vantor::text
