#include "win32/base/SystemLibrary.h"

#include "win32/base/SystemText.h"

namespace vantor::win32 {

std::wstring SystemFolder() { return SystemText(GetSystemDirectoryW); }

std::wstring WindowsFolder() { return SystemText(GetWindowsDirectoryW); }

HMODULE LoadSystemLibrary(const wchar_t* name) {
  const HMODULE library = LoadLibraryExW(name, nullptr, SystemFolderOnly);
  if (library != nullptr || GetLastError() != ERROR_INVALID_PARAMETER) return library;

  // Windows 7 without the update that introduced the flag. The full path makes sure that it is the right library, and
  // that the libraries it depends on are first searched for next to it.
  const std::wstring folder = SystemFolder();
  if (folder.empty()) return nullptr;
  return LoadLibraryExW((folder + L'\\' + name).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace vantor::win32
