#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantor::win32 {

enum class EntryKind { Folders, Files };

/// The names in a folder whose long form matches `pattern`, sorted for the user's language without regard to case and
/// without hidden ones. Empty if the folder can't be read.
[[nodiscard]] std::vector<std::wstring> ListFolder(std::wstring_view folder, EntryKind kind, std::wstring_view pattern);

}  // namespace vantor::win32
