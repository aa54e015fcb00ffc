#include "win32/base/SystemLibrary.h"

#include <string>

namespace vantor::win32 {

HMODULE LoadSystemLibrary(const wchar_t* name) {
  constexpr DWORD SystemFolderOnly = 0x800;  // LOAD_LIBRARY_SEARCH_SYSTEM32
  const HMODULE library = LoadLibraryExW(name, nullptr, SystemFolderOnly);
  if (library != nullptr || GetLastError() != ERROR_INVALID_PARAMETER) return library;

  // A Windows 7 without the update that brought the flag. By its full path the library is the right one, and so that
  // what it stands on is looked for beside it first.
  wchar_t folder[MAX_PATH] = L"";
  const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  const std::wstring path = std::wstring(folder, length) + L'\\' + name;
  return LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace vantor::win32
