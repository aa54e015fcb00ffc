#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantor::win32 {

enum class EntryKind { Folders, Files };

/// Names in a folder that fit `pattern` by their long names, sorted for the user's language without regard to
/// letter case, hidden ones left out. Empty when the folder can't be read.
[[nodiscard]] std::vector<std::wstring> ListFolder(std::wstring_view folder, EntryKind kind, std::wstring_view pattern);

}  // namespace vantor::win32
